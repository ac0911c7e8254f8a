# What an answer looks like in the console.

INDENT <- "  "
LABEL_WIDTH <- 30
ROWS_SHOWN <- 20

#' @export
format.kelpower <- function(x, digits = 4, ...) {
  if (count_of(x) > 1) return(format_many(x, digits))
  labels <- labels_of(x$test, x$question)
  shown <- x$inputs[setdiff(names(x$inputs), names(x$results))]
  flags <- vapply(shown, is.logical, NA)
  shown <- c(shown[!flags], shown[flags & vapply(shown, isTRUE, NA)])
  lines <- labelled(c(shown, x$results), labels, digits)
  inputs <- seq_along(shown)
  c("", paste0(INDENT, x$method), "", lines[inputs], "", lines[-inputs], "",
    paste0("NOTE: ", x$note), "", strwrap(x$sentence, getOption("width")))
}

labelled <- function(values, labels, digits) {
  known <- names(values) %in% names(labels)
  names(values)[known] <- labels[names(values)[known]]
  texts <- vapply(values, format_value, "", digits = digits)
  paste0(INDENT, formatC(names(values), width = -max(LABEL_WIDTH, nchar(names(values)) + 2)), texts)
}

format_value <- function(value, digits) {
  if (is.logical(value)) return(if (anyNA(value)) "NA" else paste(ifelse(value, "yes", "no"), collapse = ", "))
  if (is.character(value)) return(paste(value, collapse = ", "))
  whole <- !is.na(value) & value == round(value) & abs(value) < 1e15
  texts <- ifelse(whole, formatC(value, format = "f", digits = 0), formatC(value, digits = digits, format = "g"))
  paste(trimws(texts), collapse = ", ")
}

format_many <- function(x, digits) {
  rows <- as.data.frame(x)
  shown <- first_rows(rows, ROWS_SHOWN)
  lines <- lines_of(shown, digits)
  hidden <- nrow(rows) - nrow(shown)
  failed <- sum(x$status != 0L)
  c("", paste0(INDENT, x$method), "", lines,
    if (hidden) sprintf("... and %d more designs", hidden),
    "", paste0("NOTE: ", x$note),
    if (failed) sprintf("%d of %d designs have no answer; kp_problems() tells why", failed, nrow(rows)))
}

first_rows <- function(rows, count) rows[seq_len(min(nrow(rows), count)), , drop = FALSE]

lines_of <- function(rows, digits) {
  columns <- lapply(rows, function(column) {
    texts <- vapply(seq_along(column), function(i) if (is.na(column[i])) "NA" else format_value(column[i], digits), "")
    texts
  })
  cells <- rbind(names(rows), do.call(cbind, columns))
  for (i in seq_len(ncol(cells))) cells[, i] <- formatC(cells[, i], width = max(nchar(cells[, i])))
  paste0(INDENT, apply(cells, 1, paste, collapse = "  "))
}

#' @export
print.kelpower <- function(x, digits = 4, ...) {
  cat(format(x, digits = digits, ...), "", sep = "\n")
  invisible(x)
}
