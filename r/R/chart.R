# Charts: the points as a data frame, and pictures of base graphics.

#' @export
kp_chart <- function(x, axis = "n", y = NULL, from = NULL, to = NULL, step = NULL) {
  stopifnot(is_kelpower(x))
  request <- chart_request(x)
  request <- c(request, Filter(Negate(is.null), list(chart = dashed(axis), y = y, from = from, to = to, step = step)))
  points_of(ask(DOOR_DRAW, request, sys.call()))
}

# Several designs become curves where a single number, flag or word varies.
chart_request <- function(x) {
  varied <- names(x$given)[lengths(x$given) > 1]
  if (length(varied) > 1 || any(vapply(x$given[varied], is.list, NA))) {
    stop(kelpower_condition("input", "A chart of several designs needs that a single input varies, and is no list.",
                            NULL, code = "r-chart", parameters = varied))
  }
  inputs <- lapply(x$given, function(values) if (is.list(values)) values[[1]] else values)
  list(test = dashed(x$test), inputs = as_object(inputs))
}

# A row for each point of each curve.
points_of <- function(answer) {
  quantity <- underscored(answer$quantity)
  axes <- vapply(answer$axes, function(each) each$name, "")
  rows <- lapply(answer$curves, function(curve) {
    values <- curve[[answer$quantity]]
    if (is.null(values)) values <- curve[[quantity]]
    points <- if (length(axes) == 1) data.frame(answer$x) else expand.grid(answer$x, answer$y, KEEP.OUT.ATTRS = FALSE)
    names(points) <- axes
    points[[quantity]] <- if (length(axes) == 1) values else as.vector(do.call(rbind, values))
    if (!is.null(answer$varied)) points[[answer$varied]] <- curve[[answer$varied]]
    points
  })
  structure(class = c("kelpower_chart", "data.frame"), do.call(rbind, rows), quantity = quantity, axes = axes,
            titles = vapply(answer$axes, function(each) each$title, ""), varied = answer$varied,
            designs = lapply(answer$curves, function(curve) curve$design))
}

#' @export
plot.kelpower <- function(x, axis = "n", ..., y = NULL, from = NULL, to = NULL, step = NULL) {
  plot(kp_chart(x, axis, y, from, to, step), ..., main = x$method)
}

#' @export
plot.kelpower_chart <- function(x, main = NULL, col = NULL, ...) {
  if (length(attr(x, "axes")) == 2) draw_contours(x, main, ...) else draw_curves(x, main, col, ...)
  invisible(x)
}

# Told apart by those who are colour-blind (Okabe and Ito 2008).
COLOURS <- c("#0072B2", "#D55E00", "#009E73", "#CC79A7", "#E69F00", "#56B4E9", "#000000")

QUANTITY_TITLES <- c(power = "power", half_width = "half-width", sample_size = "sample size")

draw_curves <- function(x, main, col, ...) {
  axis <- attr(x, "axes")
  quantity <- attr(x, "quantity")
  varied <- attr(x, "varied")
  curves <- if (is.null(varied)) list(x) else split(x, factor(x[[varied]], unique(x[[varied]])))
  colours <- if (is.null(col)) rep_len(COLOURS, length(curves)) else rep_len(col, length(curves))
  limits <- if (quantity == "power") c(0, 1) else range(x[[quantity]], finite = TRUE)
  graphics::plot(range(x[[axis]]), limits, type = "n", main = main, xlab = attr(x, "titles"),
                 ylab = QUANTITY_TITLES[[quantity]], ...)
  graphics::grid()
  for (i in seq_along(curves)) {
    graphics::lines(curves[[i]][[axis]], curves[[i]][[quantity]], col = colours[i], lwd = 2)
  }
  mark_designs(attr(x, "designs"), quantity, colours)
  if (!is.null(varied)) {
    graphics::legend("bottomright", legend = names(curves), title = varied, col = colours, lwd = 2, bg = "white")
  }
}

# The designs that the chart is of, on their curves.
mark_designs <- function(designs, quantity, colours) {
  for (i in seq_along(designs)) {
    at <- designs[[i]]
    height <- at[[quantity]]
    if (!is.null(height)) graphics::points(at$at[1], height, pch = 19, col = colours[i])
  }
}

draw_contours <- function(x, main, ...) {
  axes <- attr(x, "axes")
  if (!is.null(attr(x, "varied"))) stop("a surface is drawn of one design", call. = FALSE)
  across <- unique(x[[axes[1]]])
  up <- unique(x[[axes[2]]])
  heights <- matrix(x[[attr(x, "quantity")]], length(across), length(up))
  levels <- if (attr(x, "quantity") == "power") seq(0.1, 0.9, 0.1) else pretty(heights, 10)
  graphics::contour(across, up, heights, levels = levels, main = main, xlab = attr(x, "titles")[1],
                    ylab = attr(x, "titles")[2], ...)
  mark_designs(lapply(attr(x, "designs"), function(each) list(at = each$at[1], up = each$at[2])), "up", 1)
}
