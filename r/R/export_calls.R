# Calls of the library's own functions, over vectors.

call_export <- function(name, arguments, arrays = character(), has_value = TRUE) {
  call <- sys.call(-1)
  arguments <- lapply(stats::setNames(names(arguments), names(arguments)), function(argument) {
    of_export(arguments[[argument]], argument, argument %in% arrays, call)
  })
  count <- if (any(lengths(arguments) == 0)) 0 else max(lengths(arguments))
  check_recycling(lengths(arguments), count, call)
  check_groups(arguments, arrays, call)
  values <- .Call(C_export, name, unname(arguments), as.double(count))
  if (is.null(values)) raise_interrupt()
  result_of_export(values, has_value, count)
}

of_export <- function(value, argument, is_array, call) {
  if (is_array) {
    if (!is.list(value)) value <- list(value)
    if (!all(vapply(value, is.numeric, NA))) stop_input(argument, "must be numbers.", call)
    return(lapply(value, as.double))
  }
  if (!is.numeric(value) && !is.logical(value)) stop_input(argument, "must be numbers.", call)
  as.double(value)
}

check_recycling <- function(counts, count, call) {
  odd <- names(counts)[counts > 0 & count %% pmax(counts, 1) != 0]
  if (length(odd)) stop_input(odd[1], sprintf("has %d values, which %d is no multiple of.", counts[odd[1]], count), call)
}

# The library reads as many numbers of an array as it is told, and trusts that they are there.
check_groups <- function(arguments, arrays, call) {
  groups <- arguments$numGroups
  for (name in arrays) {
    sizes <- lengths(arguments[[name]])
    rows <- max(length(groups), length(sizes))
    if (anyNA(groups) || any(rep_len(sizes, rows) != rep_len(groups, rows))) {
      stop_input(name, "must have numGroups numbers.", call)
    }
  }
  for (name in intersect(c("firstGroup", "secondGroup"), names(arguments))) {
    number <- arguments[[name]]
    rows <- max(length(groups), length(number))
    if (anyNA(number) || any(number < 1) || any(rep_len(number, rows) > rep_len(groups, rows))) {
      stop_input(name, "must be the number of a group.", call)
    }
  }
}

result_of_export <- function(values, has_value, count) {
  more <- values[[2]]
  if (is.null(more)) return(values[[1]])
  if (count == 1) more <- more[[1]]
  is_chart <- if (count == 1) is.list(more) else count > 0 && is.list(more[[1]])
  if (is_chart) return(more)
  if (has_value) list(value = values[[1]], sizes = more) else list(sizes = more)
}
