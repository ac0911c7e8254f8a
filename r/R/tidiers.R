# Methods of generics of other packages. They are registered when those packages are loaded.

tidy.kelpower <- function(x, ...) as.data.frame(x)

glance.kelpower <- function(x, ...) {
  data.frame(method = x$method, question = x$question, designs = count_of(x),
             answered = if (is.null(x$status)) 1L else sum(x$status == 0L), stringsAsFactors = FALSE)
}

autoplot.kelpower <- function(object, axis = "n", ..., y = NULL, from = NULL, to = NULL, step = NULL) {
  autoplot.kelpower_chart(kp_chart(object, axis, y, from, to, step)) + ggplot2::labs(title = object$method)
}

autoplot.kelpower_chart <- function(object, ...) {
  .data <- ggplot2::.data
  axes <- attr(object, "axes")
  quantity <- attr(object, "quantity")
  varied <- attr(object, "varied")
  points <- data.frame(x = object[[axes[1]]], value = object[[quantity]])
  if (length(axes) == 2) points$y <- object[[axes[2]]]
  if (!is.null(varied)) points$curve <- factor(object[[varied]], unique(object[[varied]]))
  labels <- list(x = attr(object, "titles")[1], y = QUANTITY_TITLES[[quantity]], colour = varied)
  if (length(axes) == 2) {
    mapping <- ggplot2::aes(x = .data$x, y = .data$y, z = .data$value)
    labels$y <- attr(object, "titles")[2]
    return(ggplot2::ggplot(points, mapping) + ggplot2::geom_contour() + do.call(ggplot2::labs, labels))
  }
  mapping <- ggplot2::aes(x = .data$x, y = .data$value)
  if (!is.null(varied)) mapping <- ggplot2::aes(x = .data$x, y = .data$value, colour = .data$curve)
  ggplot2::ggplot(points, mapping) + ggplot2::geom_line() + do.call(ggplot2::labs, labels)
}

knit_print.kelpower <- function(x, ...) {
  rows <- as.data.frame(x)
  if (count_of(x) == 1) rows <- data.frame(` ` = names(rows), value = vapply(rows, format_value, "", digits = 4),
                                           check.names = FALSE, row.names = NULL)
  table <- paste(knitr::kable(rows), collapse = "\n")
  knitr::asis_output(paste0("\n**", x$method, "**\n\n", table, "\n\n", x$sentence, "\n\n"))
}

