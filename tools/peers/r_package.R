# Times the R package with vectors of designs beside pwr, which answers them one after the other.
# Usage: Rscript r_package.R LIBRARY (the library that the package is installed in)
# Writes lines of a design, a question, and the seconds that a design takes: of kelpower with a vector, of pwr one by
# one, of pwr with a vector, and of a call of kelpower for a single design. Answers that differ end it.

library(kelpower, lib.loc = commandArgs(trailingOnly = TRUE)[1])
suppressMessages(library(pwr))
source(file.path(dirname(sub("^--file=", "", grep("^--file=", commandArgs(), value = TRUE))), "r_timing.R"))

DESIGNS <- 2000

d <- seq(0.2, 1, length.out = DESIGNS)
f <- seq(0.15, 0.6, length.out = DESIGNS)
r <- seq(0.1, 0.7, length.out = DESIGNS)
f2 <- seq(0.05, 0.4, length.out = DESIGNS)

# Sizes are compared where both count alike; pwr approximates correlations in its own way.
designs <- list(
  "Two-sample t, two-sided" = list(
    x = d, same = TRUE,
    power = list(function(x) kp_two_means(effect_d = x, n = 64)$power, function(x) pwr.t.test(n = 64, d = x)$power),
    size = list(function(x) matrix(kp_two_means(effect_d = x, power = 0.8)$n, ncol = 2)[, 1],
                function(x) pwr.t.test(d = x, power = 0.8)$n)),
  "One-sample t, one-sided" = list(
    x = d, same = TRUE,
    power = list(function(x) kp_mean(effect_d = x, n = 40, one_sided = TRUE)$power,
                 function(x) pwr.t.test(n = 40, d = x, type = "one.sample", alternative = "greater")$power),
    size = list(function(x) kp_mean(effect_d = x, power = 0.8, one_sided = TRUE)$n,
                function(x) pwr.t.test(d = x, power = 0.8, type = "one.sample", alternative = "greater")$n)),
  "Analysis of variance, 4 groups" = list(
    x = f, same = TRUE,
    power = list(function(x) kp_anova(effect_f = x, groups = 4, n = 20)$power,
                 function(x) pwr.anova.test(k = 4, n = 20, f = x)$power),
    size = list(function(x) matrix(kp_anova(effect_f = x, groups = 4, power = 0.8)$n, ncol = 4)[, 1],
                function(x) pwr.anova.test(k = 4, f = x, power = 0.8)$n)),
  "Correlation" = list(
    x = r, same = FALSE,
    power = list(function(x) kp_pearson(r = x, n = 50)$power, function(x) pwr.r.test(r = x, n = 50)$power),
    size = list(function(x) kp_pearson(r = x, power = 0.8)$n, function(x) pwr.r.test(r = x, power = 0.8)$n)),
  "Regression, 5 predictors" = list(
    x = f2, same = TRUE,
    power = list(function(x) kp_regression(effect_f2 = x, predictors = 5, n = 95)$power,
                 function(x) pwr.f2.test(u = 5, v = 89, f2 = x)$power),
    size = list(function(x) kp_regression(effect_f2 = x, predictors = 5, power = 0.8)$n,
                function(x) pwr.f2.test(u = 5, f2 = x, power = 0.8)$v + 6)))

one_by_one <- function(call, x) vapply(x, call, 0)

# A size of ours is the first whole one at which the power is reached.
check_answers <- function(design, question, ours, theirs) {
  if (question == "size") theirs <- ceiling(theirs - 1e-4)
  largest <- max(abs(ours - theirs))
  if (!(largest < if (question == "power") 1e-8 else 0.5)) stop(design, ", ", question, ": the answers differ by ", largest)
}

for (name in names(designs)) {
  design <- designs[[name]]
  for (question in c("power", "size")) {
    ours <- design[[question]][[1]]
    theirs <- design[[question]][[2]]
    few <- design$x[seq(1, DESIGNS, length.out = 100)]
    if (design$same) check_answers(name, question, ours(few), one_by_one(theirs, few))
    vector <- if (question == "power") seconds_per_call(function() theirs(design$x)) / DESIGNS else NA
    cat(name, question, seconds_per_call(function() ours(design$x)) / DESIGNS,
        seconds_per_call(function() one_by_one(theirs, few)) / length(few), vector,
        seconds_per_call(function() ours(few[50])), sep = "\t")
    cat("\n")
  }
}
