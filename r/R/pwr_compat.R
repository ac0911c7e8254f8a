# The functions of the package pwr under their names and with their arguments, over this package's distributions. Sizes
# are not rounded, as there.

#' @export
pwr_compat <- function(attach = TRUE) {
  functions <- list2env(pwr_functions, parent = topenv())
  if (!attach) return(functions)
  name <- "kelpower::pwr_compat"
  # To be on the search path is what the caller asks for, as by library().
  if (!name %in% search()) do.call(base::attach, list(functions, name = name, warn.conflicts = FALSE))
  # R finds methods by their registration and not on the search path.
  registerS3method("plot", "power.htest", functions$plot.power.htest)
  invisible(functions)
}

TAILS <- c("two.sided", "less", "greater")

# The unknown among what is given, of which one is NULL.
unknown_of <- function(given) {
  is_unknown <- vapply(given, is.null, NA)
  if (sum(is_unknown) != 1) {
    stop("exactly one of ", paste(names(given), collapse = ", "), " must be NULL", call. = FALSE)
  }
  for (name in names(given)[!is_unknown]) check_pwr_number(given[[name]], name)
  names(given)[is_unknown]
}

check_pwr_number <- function(value, name) {
  if (!is.numeric(value) || !length(value) || !all(is.finite(value))) stop(name, " must be a number", call. = FALSE)
  if (name %in% c("sig.level", "power") && any(value < 0 | value > 1)) stop(name, " must be in [0, 1]", call. = FALSE)
}

check_above <- function(value, least, name) {
  if (!is.null(value) && !all(value > least)) stop(name, " must be above ", least, call. = FALSE)
}

# How each unknown is searched: where the search starts, and the ends that it may approach.
RANGES <- list(
  sig.level = c(start = 0.05, low = 0, high = 1),
  positive = c(start = 0.5, low = 0, high = Inf),
  signed = c(start = 0, low = -Inf, high = Inf))

# Solves `power_of(x) = power` for x. A power that is reached on both sides of an odd start is that nearest to it.
solve_pwr <- function(power_of, power, range, what) {
  start <- range[["start"]]
  excess <- function(x) power_of(x) - power
  at_start <- excess(start)
  if (at_start == 0) return(start)
  for (toward in c("high", "low")) {
    near <- start
    value_near <- at_start
    for (step in seq_len(SEARCH_STEPS)) {
      far <- stepped(start, range[[toward]], step)
      value_far <- excess(far)
      if (!is.finite(value_far)) break
      if (value_near * value_far <= 0) return(bracketed(excess, near, far))
      near <- far
      value_near <- value_far
    }
  }
  stop("no ", what, " gives a power of ", format(power), call. = FALSE)
}

SEARCH_STEPS <- 120

# Steps that double toward infinity, and halve the way to an end.
stepped <- function(start, end, step) {
  if (is.infinite(end)) start + sign(end) * max(1, abs(start)) * (2^(step / 2) - 1) else end + (start - end) * 2^(-step / 2)
}

bracketed <- function(excess, one, other) {
  ends <- sort(c(one, other))
  stats::uniroot(excess, ends, tol = 4 * .Machine$double.eps * max(abs(ends[1]), 1e-300), maxiter = 1000)$root
}

# Completes what is given: `power_of` is called with all but the power. That of an unbiased test is never below its level.
completed <- function(given, power_of, ranges, is_unbiased = TRUE) {
  unknown <- unknown_of(given)
  rest <- given[setdiff(names(given), "power")]
  if (unknown == "power") {
    given$power <- do.call(power_of, rest)
    return(given)
  }
  if (any(lengths(given) > 1)) stop("vectors are for the power alone: give one ", unknown, " at a time", call. = FALSE)
  if (is_unbiased && unknown != "sig.level" && given$power <= given$sig.level) {
    stop("the power is always above sig.level: no ", unknown, " gives ", format(given$power), call. = FALSE)
  }
  given[[unknown]] <- solve_pwr(function(x) do.call(power_of, replaced(rest, unknown, x)), given$power,
                                ranges[[unknown]], unknown)
  given
}

overridden <- function(list, others) {
  list[names(others)] <- others
  list
}

replaced <- function(list, name, value) {
  list[[name]] <- value
  list
}

# The answer, with its fields in the order that they have in pwr.
pwr_answer <- function(given, method, alternative, note, power_of, size, note_is_last = FALSE) {
  answer <- given
  answer$alternative <- alternative
  about <- c(list(note = note)[!is.null(note)], list(method = method))
  rest <- given[setdiff(names(given), "power")]
  structure(class = "power.htest", c(answer, if (note_is_last) rev(about) else about), size = size,
            power_at = function(n) do.call(power_of, replaced(rest, size, n)))
}

effect_range <- function(alternative) if (alternative == "two.sided") RANGES$positive else RANGES$signed

above <- function(least, start) c(start = start, low = least, high = Inf)

# The power of a t test with that noncentrality.
t_power <- function(df, ncp, sig.level, alternative) {
  switch(alternative,
    two.sided = {
      critical <- kp_qt(sig.level / 2, df, lower.tail = FALSE)
      kp_pt(critical, df, ncp, lower.tail = FALSE) + kp_pt(-critical, df, ncp)
    },
    less = kp_pt(kp_qt(sig.level, df), df, ncp),
    greater = kp_pt(kp_qt(sig.level, df, lower.tail = FALSE), df, ncp, lower.tail = FALSE))
}

normal_power <- function(shift, sig.level, alternative) {
  switch(alternative,
    two.sided = {
      critical <- kp_qnorm(sig.level / 2, lower.tail = FALSE)
      kp_pnorm(shift - critical) + kp_pnorm(-shift - critical)
    },
    less = kp_pnorm(kp_qnorm(sig.level) - shift),
    greater = kp_pnorm(shift - kp_qnorm(sig.level, lower.tail = FALSE)))
}

# A test whose statistic is normal, shifted by the effect times a root of the sizes.
normal_test <- function(given, effect, size, root, least, alternative, method, note = NULL) {
  if (alternative == "two.sided" && !is.null(given[[effect]])) given[[effect]] <- abs(given[[effect]])
  power_of <- function(...) {
    values <- list(...)
    normal_power(values[[effect]] * root(values), values$sig.level, alternative)
  }
  sizes <- stats::setNames(rep(list(above(0, max(least, 2))), length(size)), size)
  ranges <- c(sizes, list(sig.level = RANGES$sig.level), stats::setNames(list(effect_range(alternative)), effect))
  for (name in size) check_above(given[[name]], least, name)
  given <- completed(given, power_of, ranges, alternative == "two.sided")
  pwr_answer(given, method, alternative, note, power_of, size[1], note_is_last = TRUE)
}

pwr_functions <- list(
  pwr.t.test = function(n = NULL, d = NULL, sig.level = 0.05, power = NULL,
                        type = c("two.sample", "one.sample", "paired"), alternative = TAILS) {
    type <- match.arg(type)
    alternative <- match.arg(alternative)
    samples <- if (type == "two.sample") 2 else 1
    if (alternative == "two.sided" && !is.null(d)) d <- abs(d)
    check_above(n, 1, "n")
    power_of <- function(n, d, sig.level) t_power((n - 1) * samples, sqrt(n / samples) * d, sig.level, alternative)
    ranges <- list(n = above(1, 2), d = effect_range(alternative), sig.level = RANGES$sig.level)
    given <- completed(list(n = n, d = d, sig.level = sig.level, power = power), power_of, ranges,
                       alternative == "two.sided")
    note <- switch(type, paired = "n is number of *pairs*", two.sample = "n is number in *each* group")
    method <- paste(switch(type, one.sample = "One-sample", two.sample = "Two-sample", paired = "Paired"),
                    "t test power calculation")
    pwr_answer(given, method, alternative, note, power_of, "n")
  },

  pwr.t2n.test = function(n1 = NULL, n2 = NULL, d = NULL, sig.level = 0.05, power = NULL, alternative = TAILS) {
    alternative <- match.arg(alternative)
    if (alternative == "two.sided" && !is.null(d)) d <- abs(d)
    check_above(n1, 1, "n1")
    check_above(n2, 1, "n2")
    power_of <- function(n1, n2, d, sig.level) {
      t_power(n1 + n2 - 2, d / sqrt(1 / n1 + 1 / n2), sig.level, alternative)
    }
    ranges <- list(n1 = above(0, 2), n2 = above(0, 2), d = effect_range(alternative), sig.level = RANGES$sig.level)
    given <- completed(list(n1 = n1, n2 = n2, d = d, sig.level = sig.level, power = power), power_of, ranges,
                       alternative == "two.sided")
    pwr_answer(given, "t test power calculation", alternative, NULL, power_of, "n1")
  },

  pwr.norm.test = function(d = NULL, n = NULL, sig.level = 0.05, power = NULL, alternative = TAILS) {
    normal_test(list(d = d, n = n, sig.level = sig.level, power = power), "d", "n", function(each) sqrt(each$n), 0,
                match.arg(alternative), "Mean power calculation for normal distribution with known variance")
  },

  pwr.p.test = function(h = NULL, n = NULL, sig.level = 0.05, power = NULL, alternative = TAILS) {
    normal_test(list(h = h, n = n, sig.level = sig.level, power = power), "h", "n", function(each) sqrt(each$n), 0,
                match.arg(alternative), "proportion power calculation for binomial distribution (arcsine transformation)")
  },

  pwr.2p.test = function(h = NULL, n = NULL, sig.level = 0.05, power = NULL, alternative = TAILS) {
    normal_test(list(h = h, n = n, sig.level = sig.level, power = power), "h", "n", function(each) sqrt(each$n / 2), 0,
                match.arg(alternative),
                "Difference of proportion power calculation for binomial distribution (arcsine transformation)",
                "same sample sizes")
  },

  pwr.2p2n.test = function(h = NULL, n1 = NULL, n2 = NULL, sig.level = 0.05, power = NULL, alternative = TAILS) {
    normal_test(list(h = h, n1 = n1, n2 = n2, sig.level = sig.level, power = power), "h", c("n1", "n2"),
                function(each) 1 / sqrt(1 / each$n1 + 1 / each$n2), 0, match.arg(alternative),
                "difference of proportion power calculation for binomial distribution (arcsine transformation)",
                "different sample sizes")
  },

  pwr.anova.test = function(k = NULL, n = NULL, f = NULL, sig.level = 0.05, power = NULL) {
    check_above(k, 1, "k")
    check_above(n, 1, "n")
    power_of <- function(k, n, f, sig.level) {
      critical <- kp_qf(sig.level, k - 1, (n - 1) * k, lower.tail = FALSE)
      kp_pf(critical, k - 1, (n - 1) * k, k * n * f^2, lower.tail = FALSE)
    }
    ranges <- list(k = above(1, 2), n = above(1, 2), f = RANGES$positive, sig.level = RANGES$sig.level)
    given <- completed(list(k = k, n = n, f = f, sig.level = sig.level, power = power), power_of, ranges)
    pwr_answer(given, "Balanced one-way analysis of variance power calculation", NULL, "n is number in each group",
               power_of, "n")
  },

  pwr.f2.test = function(u = NULL, v = NULL, f2 = NULL, sig.level = 0.05, power = NULL) {
    check_above(u, 0, "u")
    check_above(v, 0, "v")
    power_of <- function(u, v, f2, sig.level) {
      kp_pf(kp_qf(sig.level, u, v, lower.tail = FALSE), u, v, f2 * (u + v + 1), lower.tail = FALSE)
    }
    ranges <- list(u = above(0, 1), v = above(0, 2), f2 = RANGES$positive, sig.level = RANGES$sig.level)
    given <- completed(list(u = u, v = v, f2 = f2, sig.level = sig.level, power = power), power_of, ranges)
    pwr_answer(given, "Multiple regression power calculation", NULL, NULL, power_of, "v")
  },

  pwr.chisq.test = function(w = NULL, N = NULL, df = NULL, sig.level = 0.05, power = NULL) {
    if (is.null(df)) stop("df must be a number", call. = FALSE)
    check_pwr_number(df, "df")
    check_above(df, 0, "df")
    check_above(N, 0, "N")
    power_of <- function(w, N, sig.level) {
      critical <- stats::qchisq(sig.level, df, lower.tail = FALSE)
      stats::pchisq(critical, df, N * w^2, lower.tail = FALSE)
    }
    ranges <- list(N = above(0, 2), w = RANGES$positive, sig.level = RANGES$sig.level)
    given <- completed(list(w = w, N = N, sig.level = sig.level, power = power), power_of, ranges)
    given <- c(given[c("w", "N")], list(df = df), given[c("sig.level", "power")])
    answer <- pwr_answer(given, "Chi squared power calculation", NULL, "N is the number of observations", power_of, "N",
                         note_is_last = TRUE)
    attr(answer, "power_at") <- function(n) power_of(given$w, n, given$sig.level)
    answer
  },

  # Fisher's z of the correlation, with its bias, against that of the critical correlation (Cohen 1988, section 3.4).
  pwr.r.test = function(n = NULL, r = NULL, sig.level = 0.05, power = NULL, alternative = TAILS) {
    alternative <- match.arg(alternative)
    check_above(n, 3, "n")
    if (!is.null(r) && (!is.numeric(r) || abs(r) >= 1)) stop("r must be in (-1, 1)", call. = FALSE)
    if (alternative == "two.sided" && !is.null(r)) r <- abs(r)
    power_of <- function(n, r, sig.level) {
      if (alternative == "less") r <- -r
      critical_t <- kp_qt(if (alternative == "two.sided") sig.level / 2 else sig.level, n - 2, lower.tail = FALSE)
      critical <- atanh(critical_t / sqrt(critical_t^2 + n - 2))
      z <- atanh(r) + r / (2 * (n - 1))
      reached <- kp_pnorm((z - critical) * sqrt(n - 3))
      if (alternative == "two.sided") reached + kp_pnorm((-z - critical) * sqrt(n - 3)) else reached
    }
    ranges <- list(n = above(3, 4), sig.level = RANGES$sig.level,
                   r = if (alternative == "two.sided") c(start = 0.5, low = 0, high = 1) else
                     c(start = 0, low = -1, high = 1))
    # Its approximation of the power is below the level for sizes near 3.
    given <- completed(list(n = n, r = r, sig.level = sig.level, power = power), power_of, ranges, FALSE)
    pwr_answer(given, "approximate correlation power calculation (arctangh transformation)", alternative, NULL,
               power_of, "n")
  },

  ES.h = function(p1, p2) 2 * asin(sqrt(p1)) - 2 * asin(sqrt(p2)),

  ES.w1 = function(P0, P1) sqrt(sum((P1 - P0)^2 / P0)),

  ES.w2 = function(P) {
    independent <- outer(rowSums(P), colSums(P))
    sqrt(sum((P - independent)^2 / independent))
  },

  # Cohen (1988), chapters 2 to 9.
  cohen.ES = function(test = c("p", "t", "r", "anov", "chisq", "f2"), size = c("small", "medium", "large")) {
    test <- match.arg(test)
    size <- match.arg(size)
    effects <- switch(test, p = , t = c(0.2, 0.5, 0.8), r = , chisq = c(0.1, 0.3, 0.5), anov = c(0.1, 0.25, 0.4),
                      f2 = c(0.02, 0.15, 0.35))
    structure(class = "power.htest",
              list(test = test, size = size, effect.size = effects[match(size, c("small", "medium", "large"))],
                   method = "Conventional effect size from Cohen (1982)"))
  },

  plot.power.htest = function(x, ...) {
    power_at <- attr(x, "power_at")
    if (is.null(power_at)) stop("this answer cannot be drawn", call. = FALSE)
    size <- attr(x, "size")
    sizes <- seq(max(4, x[[size]] / 5), 1.5 * max(x[[size]], 10), length.out = 101)
    look <- overridden(list(type = "l", lwd = 2, ylim = c(0, 1), xlab = size, ylab = "power", main = x$method), list(...))
    do.call(graphics::plot, c(list(sizes, vapply(sizes, power_at, 0)), look))
    graphics::abline(v = x[[size]], lty = 3)
    invisible(x)
  }
)
