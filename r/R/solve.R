# From the arguments of a function to its answer. One design goes through the library's door for texts, which answers in
# words too; several go through the door for columns.

solve_test <- function(test, given, call) {
  given <- .Call(C_without_null, given)
  check_names(given, call)
  kinds <- kinds_of(test)
  for (name in names(given)) given[[name]] <- designs_of(given[[name]], kinds[name], name, call)
  count <- common_count(lengths(given), call)
  if (count == 1) solve_one(test, given, call) else solve_many(test, given, count, call)
}

check_names <- function(given, call) {
  names <- names(given)
  if (length(given) && (is.null(names) || !all(nzchar(names)))) {
    stop(kelpower_condition("input", "Arguments are given by their names, such as power = 0.8.", call,
                            code = "r-unnamed"))
  }
  if (anyDuplicated(names)) stop_input(names[anyDuplicated(names)], "is given twice.", call)
}

# The value of an input for each design: a vector, or for inputs that are lists themselves a list of vectors. A matrix or
# data frame has a design in each row.
designs_of <- function(value, kind, name, call) {
  if (is.double(value) && is.null(attributes(value)) && length(value)) {
    return(if (is_list_kind(kind)) list(value) else value)
  }
  if (is.factor(value)) value <- as.character(value)
  if (is.data.frame(value)) value <- as.matrix(value)
  if (is.matrix(value)) value <- lapply(seq_len(nrow(value)), function(row) value[row, ])
  if (!is.list(value) && is_list_kind(kind)) value <- list(value)
  usable <- if (is.list(value)) all(vapply(value, is_numbers, NA)) else is.numeric(value) || is.logical(value) ||
    is.character(value)
  if (!usable) stop_input(name, "must be numbers, flags or words.", call)
  if (!length(value) || any(lengths(value) == 0)) stop_input(name, "is empty.", call)
  if (is.list(value)) return(lapply(unname(value), as.double))
  if (is.character(value) && identical(unname(kind), "choice")) return(dashed(as.vector(value)))
  if (is.integer(value)) as.double(value) else as.vector(value)
}

is_list_kind <- function(kind) !is.na(kind) && kind %in% c("list", "per-group")

is_numbers <- function(value) is.numeric(value) || (is.logical(value) && all(is.na(value)))

common_count <- function(counts, call) {
  if (all(counts == 1L)) return(1L)
  count <- max(counts)
  odd <- names(counts)[counts != 1 & counts != count]
  if (length(odd)) {
    problem <- sprintf("has %d values, but must have 1 or %d like %s.", counts[[odd[1]]], count,
                       names(counts)[which.max(counts)])
    stop_input(odd[1], problem, call)
  }
  count
}

# The value of a design, where one value stands for all.
value_of <- function(values, row) values[[if (length(values) == 1) 1L else row]]

solve_one <- function(test, given, call) {
  inputs <- lapply(given, value_of, 1L)
  check_finite(inputs, call)
  answer <- ask(DOOR_SOLVE, list(test = dashed(test), inputs = as_object(inputs)), call)
  new_kelpower(test, answer$question, answer$inputs, answer$results, given, answer$sentence)
}

# An empty list that JSON writes as an object.
as_object <- function(list) if (length(list)) list else stats::setNames(list(), character())

check_finite <- function(inputs, call) {
  for (name in names(inputs)) {
    value <- inputs[[name]]
    if (is.double(value) && all(is.finite(value))) next
    if (anyNA(value)) stop_input(name, "is missing (NA).", call, value)
    if (is.numeric(value) && any(is.infinite(value))) stop_input(name, "must be finite.", call, value)
  }
}
