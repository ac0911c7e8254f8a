# Effect sizes from what a study reports.

convert_effect <- function(given, call) {
  given <- .Call(C_without_null, given)
  check_names(given, call)
  given <- lapply(given, function(value) if (is.factor(value)) as.character(value) else as.vector(value))
  check_finite(given, call)
  answer <- ask(DOOR_CONVERT, list(inputs = as_object(given)), call)
  structure(class = "kelpower_effect", answer[c("inputs", "results", "sentence", intersect("note", names(answer)))])
}

LIMITS <- c("_lower", "_upper")

#' @export
as.data.frame.kelpower_effect <- function(x, row.names = NULL, optional = FALSE, ...) {
  numbers <- Filter(is.numeric, x$results)
  is_limit <- sub("_(lower|upper)$", "", names(numbers)) != names(numbers)
  effects <- names(numbers)[!is_limit]
  of <- function(suffix) {
    vapply(paste0(effects, suffix), function(name) if (is.null(numbers[[name]])) NA_real_ else numbers[[name]], 0)
  }
  data.frame(effect = effects, value = of(""), lower = of(LIMITS[1]), upper = of(LIMITS[2]),
             row.names = if (is.null(row.names)) seq_along(effects) else row.names, stringsAsFactors = FALSE)
}

#' @export
print.kelpower_effect <- function(x, digits = 4, ...) {
  cat("", lines_of(as.data.frame(x), digits), "", strwrap(x$sentence, getOption("width")), "", sep = "\n")
  if (!is.null(x$note)) cat(strwrap(x$note, getOption("width")), "", sep = "\n")
  invisible(x)
}
