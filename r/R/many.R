# Many designs: rows that share their route are answered by one call of the library. An input or result of a design is
# an element of a vector, or a row of a matrix where it is a list; one element or row stands for all designs.

solve_many <- function(test, given, count, call) {
  kinds <- kinds_of(test)
  fixed_names <- shapes_of(test)
  varies <- function(name) length(given[[name]]) > 1 && !name %in% fixed_names && can_vary(given, kinds, name)
  is_column <- vapply(names(given), varies, NA)
  fixed <- given[!is_column]
  parts <- split_rows(fixed, given[is_column], count)
  answers <- lapply(parts, function(rows) {
    inputs <- lapply(fixed, value_of, rows[1])
    check_finite(inputs, call)
    columns <- if (length(rows) == count) given[is_column] else lapply(given[is_column], `[`, rows)
    run_rows(test, inputs, columns, length(rows), call)
  })
  joined <- join_parts(answers, parts, count)
  # An answer leaves out a flag that is not set where its route has none.
  words <- Filter(function(values) length(values) > 1 && (is.logical(values) || is.character(values)), fixed)
  told <- intersect(names(words), names(joined$inputs))
  joined$inputs[told] <- words[told]
  new_kelpower(test, joined$question, joined$inputs, joined$results, given, status = joined$status)
}

# Flags and words decide the route and stand still within a call, as numbers do that decide how long lists are.
can_vary <- function(given, kinds, name) {
  is_list_kind(kinds[name]) || (identical(kinds[[name]], "number") && is.numeric(given[[name]]))
}

# The rows by what must be equal within a call: the fixed inputs, and the lengths of lists.
split_rows <- function(fixed, varying, count) {
  keys <- lapply(fixed[lengths(fixed) > 1], function(values) match(values, unique(values)))
  keys <- c(keys, lapply(Filter(is.list, varying), lengths))
  if (!length(keys)) return(list(seq_len(count)))
  unname(split(seq_len(count), do.call(paste, c(unname(keys), sep = "|"))))
}

# The columns of lists: one for each entry, or one that stands for all.
columns_of <- function(varying) {
  columns <- list()
  numbers <- list()
  for (name in names(varying)) {
    value <- varying[[name]]
    entries <- if (is.list(value)) length(value[[1]]) else 1L
    for (entry in seq_len(entries)) {
      columns[[length(columns) + 1]] <- if (entries == 1) name else list(name = name, entry = entry - 1)
      numbers[[length(numbers) + 1]] <- if (!is.list(value)) as.double(value) else if (entries == 1) unlist(value) else
        vapply(value, `[`, 0, entry)
    }
  }
  list(columns = columns, numbers = numbers)
}

run_rows <- function(test, inputs, varying, count, call) {
  columns <- columns_of(varying)
  request <- list(test = dashed(test), inputs = as_object(inputs), columns = columns$columns, names = "underscore")
  reply <- .Call(C_run, request, columns$numbers, count)
  if (reply$status != 0L) stop_with(reply, call)
  answer <- reply$answer
  kinds <- kinds_of(test)
  fixed <- Map(function(value, name) if (is_list_kind(kinds[name])) matrix(value, 1) else value,
               answer$inputs, names(answer$inputs))
  given <- gathered(vapply(answer$columns, function(each) each$name, ""), columns$numbers)
  groups <- groups_of(test, given, fixed)
  given <- Map(function(value, name) if (is_list_kind(kinds[name])) as_rows(value, kinds[[name]], groups) else value,
               given, names(given))
  names(given) <- as_targets(names(given))
  results <- gathered(vapply(answer$results, function(each) each$name, ""), reply$results,
                      vapply(answer$results, function(each) !is.null(each$entry), NA))
  list(question = answer$question, inputs = c(given, fixed), results = results, status = reply$rows)
}

# A row for each design. One number stands for all groups.
as_rows <- function(value, kind, groups) {
  if (!is.matrix(value)) value <- matrix(value)
  if (kind != "per-group" || ncol(value) > 1 || groups == 1) value else value[, rep(1L, groups), drop = FALSE]
}

groups_of <- function(test, ...) {
  described <- tests()[[test]]$groups
  if (described != "k") return(as.numeric(described))
  inputs <- c(...)
  if (!is.null(inputs$groups)) return(inputs$groups)
  kinds <- kinds_of(test)
  max(1, vapply(inputs[kinds[names(inputs)] %in% "per-group"], NCOL, 0L))
}

# What a design is to reach has another name than what it reaches.
as_targets <- function(names) ifelse(names %in% c("power", "half_width"), paste0("target_", names), names)

# Columns by their names; those that are entries of a list together as a matrix.
gathered <- function(names, columns, is_entry = duplicated(names) | duplicated(names, fromLast = TRUE)) {
  lapply(split(seq_along(names), factor(names, unique(names))), function(of_name) {
    if (is_entry[of_name[1]]) do.call(cbind, columns[of_name]) else columns[[of_name]]
  })
}

join_parts <- function(answers, parts, count) {
  if (length(answers) == 1) return(answers[[1]])
  joined <- list(question = answers[[1]]$question, status = integer(count))
  for (i in seq_along(answers)) joined$status[parts[[i]]] <- answers[[i]]$status
  for (member in c("inputs", "results")) {
    names <- unique(unlist(lapply(answers, function(answer) names(answer[[member]]))))
    joined[[member]] <- lapply(stats::setNames(names, names), function(name) {
      join_values(lapply(answers, function(answer) answer[[member]][[name]]), parts, count)
    })
  }
  joined
}

# The values of all parts in the order of the designs; NA where a part has none.
join_values <- function(values, parts, count) {
  width <- max(1L, vapply(values, NCOL, 0L))
  whole <- matrix(unlist(values)[NA_integer_], count, width)
  for (i in seq_along(values)) {
    value <- values[[i]]
    if (is.null(value)) next
    rows <- parts[[i]]
    if (!is.matrix(value)) value <- matrix(value)
    if (nrow(value) == 1) value <- value[rep(1L, length(rows)), , drop = FALSE]
    whole[rows, seq_len(ncol(value))] <- value
  }
  if (any(vapply(values, is.matrix, NA))) whole else whole[, 1]
}
