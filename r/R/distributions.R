# The distributions with the arguments of R's own.

distribution <- function(name, ..., lower.tail = TRUE) {
  arguments <- lapply(list(...), as.double)
  count <- if (any(lengths(arguments) == 0)) 0 else max(lengths(arguments))
  values <- .Call(C_distribution, name, arguments, lower.tail, as.double(count))
  first <- ..1
  if (length(first) == count) attributes(values) <- attributes(first)
  values
}

#' @export
kp_pnorm <- function(q, mean = 0, sd = 1, lower.tail = TRUE) {
  distribution("pnorm", standardised(q, mean, sd), lower.tail = lower.tail)
}

standardised <- function(q, mean, sd) {
  sd[!is.na(sd) & sd <= 0] <- NA
  (q - mean) / sd
}

#' @export
kp_qnorm <- function(p, mean = 0, sd = 1, lower.tail = TRUE) {
  sd[!is.na(sd) & sd <= 0] <- NA
  mean + sd * distribution("qnorm", p, lower.tail = lower.tail)
}

#' @export
kp_pt <- function(q, df, ncp = 0, lower.tail = TRUE) distribution("pt", q, df, ncp, lower.tail = lower.tail)

#' @export
kp_qt <- function(p, df, lower.tail = TRUE) distribution("qt", p, df, lower.tail = lower.tail)

#' @export
kp_pf <- function(q, df1, df2, ncp = 0, lower.tail = TRUE) {
  if (all(ncp %in% 0)) return(distribution("pf_central", q, df1, df2, lower.tail = lower.tail))
  lower <- distribution("pf", q, df1, df2, ncp)
  if (lower.tail) lower else 1 - lower
}

#' @export
kp_qf <- function(p, df1, df2, lower.tail = TRUE) distribution("qf", p, df1, df2, lower.tail = lower.tail)

#' @export
kp_pbeta <- function(q, shape1, shape2, lower.tail = TRUE) {
  distribution("pbeta", q, shape1, shape2, lower.tail = lower.tail)
}

#' @export
kp_qbeta <- function(p, shape1, shape2) distribution("qbeta", p, shape1, shape2)

#' @export
kp_dbinom <- function(x, size, prob) distribution("dbinom", x, size, prob)

#' @export
kp_pbinom <- function(q, size, prob, lower.tail = TRUE) {
  distribution("pbinom", q, size, prob, lower.tail = lower.tail)
}

#' @export
kp_qbinom <- function(p, size, prob) distribution("qbinom", p, size, prob)

#' @export
kp_dnbinom <- function(x, size, prob) distribution("dnbinom", x, size, prob)

#' @export
kp_lgamma <- function(x) distribution("lgamma", x)
