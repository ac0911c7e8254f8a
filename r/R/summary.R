# What is behind an answer: the figures, the formula, its source, and how other programs are asked.

#' @export
summary.kelpower <- function(object, ...) {
  if (count_of(object) > 1) {
    return(structure(class = "summary.kelpower", list(answer = object, table = summary(as.data.frame(object)))))
  }
  answer <- ask(DOOR_SOLVE, c(request_of(object), list(explain = TRUE, calls = TRUE)), NULL)
  structure(class = "summary.kelpower",
            list(answer = object, details = answer$details, calls = answer$calls))
}

# One design as a request.
request_of <- function(x) list(test = dashed(x$test), inputs = as_object(lapply(x$given, value_of, 1L)))

#' @export
print.summary.kelpower <- function(x, digits = 6, ...) {
  print(x$answer)
  if (!is.null(x$table)) print(x$table)
  details <- x$details
  paragraph <- function(title, text) cat(title, strwrap(text, getOption("width"), prefix = "  "), "", sep = "\n")
  if (length(details$figures)) cat("Figures", labelled(details$figures, character(), digits), "", sep = "\n")
  if (!is.null(details$formula)) paragraph("Formula", details$formula)
  if (!is.null(details$source)) paragraph("Source", details$source)
  for (program in details$programs) {
    cat(program$program, if (isTRUE(program$same)) "" else ", whose answer differs", ":\n  ", program$call, "\n", sep = "")
    if (!is.null(program$remark)) cat(strwrap(program$remark, getOption("width"), prefix = "  "), sep = "\n")
  }
  invisible(x)
}
