# Times pwr and base R on the designs of kelpower_calls.cpp.
# Writes lines of a program, a design, a question, the answer and the seconds of a call, separated by tabs.

suppressMessages(library(pwr))
source(file.path(dirname(sub("^--file=", "", grep("^--file=", commandArgs(), value = TRUE))), "r_timing.R"))

three_means <- c(10, 12, 15)
three_means_f <- sqrt(mean((three_means - mean(three_means))^2)) / 6
two_proportions_h <- ES.h(0.5, 0.3)

# Sizes are those of the first group, not rounded. Base R counts the lesser tail only when it is told to be strict.
designs <- list(
  "one-sample-t" = list(
    pwr = list(
      power = function() pwr.t.test(n = 40, d = 0.4, type = "one.sample")$power,
      size = function() pwr.t.test(d = 0.4, power = 0.8, type = "one.sample")$n),
    R = list(
      power = function() power.t.test(n = 40, delta = 0.4, type = "one.sample", strict = TRUE)$power,
      size = function() power.t.test(delta = 0.4, power = 0.8, type = "one.sample", strict = TRUE)$n)),
  "one-sample-t-one-sided" = list(
    pwr = list(
      power = function() pwr.t.test(n = 40, d = 0.4, type = "one.sample", alternative = "greater")$power,
      size = function() pwr.t.test(d = 0.4, power = 0.8, type = "one.sample", alternative = "greater")$n),
    R = list(
      power = function() power.t.test(n = 40, delta = 0.4, type = "one.sample", alternative = "one.sided")$power,
      size = function() power.t.test(delta = 0.4, power = 0.8, type = "one.sample", alternative = "one.sided")$n)),
  "paired-t" = list(
    pwr = list(
      power = function() pwr.t.test(n = 30, d = 0.5, type = "paired")$power,
      size = function() pwr.t.test(d = 0.5, power = 0.9, type = "paired")$n),
    R = list(
      power = function() power.t.test(n = 30, delta = 0.5, type = "paired", strict = TRUE)$power,
      size = function() power.t.test(delta = 0.5, power = 0.9, type = "paired", strict = TRUE)$n)),
  "two-sample-t" = list(
    pwr = list(
      power = function() pwr.t.test(n = 64, d = 0.5)$power,
      size = function() pwr.t.test(d = 0.5, power = 0.8)$n),
    R = list(
      power = function() power.t.test(n = 64, delta = 0.5, strict = TRUE)$power,
      size = function() power.t.test(delta = 0.5, power = 0.8, strict = TRUE)$n)),
  "two-sample-t-one-sided" = list(
    pwr = list(
      power = function() pwr.t.test(n = 64, d = 0.5, alternative = "greater")$power,
      size = function() pwr.t.test(d = 0.5, power = 0.8, alternative = "greater")$n),
    R = list(
      power = function() power.t.test(n = 64, delta = 0.5, alternative = "one.sided")$power,
      size = function() power.t.test(delta = 0.5, power = 0.8, alternative = "one.sided")$n)),
  "two-sample-t-small-effect" = list(
    pwr = list(
      power = function() pwr.t.test(n = 1600, d = 0.1)$power,
      size = function() pwr.t.test(d = 0.1, power = 0.8)$n),
    R = list(
      power = function() power.t.test(n = 1600, delta = 0.1, strict = TRUE)$power,
      size = function() power.t.test(delta = 0.1, power = 0.8, strict = TRUE)$n)),
  "two-sample-t-unequal" = list(
    pwr = list(power = function() pwr.t2n.test(n1 = 40, n2 = 80, d = 0.5)$power)),
  "anova" = list(
    pwr = list(
      power = function() pwr.anova.test(k = 3, n = 20, f = three_means_f)$power,
      size = function() pwr.anova.test(k = 3, f = three_means_f, power = 0.8)$n),
    R = list(
      power = function() power.anova.test(groups = 3, n = 20, between.var = var(three_means), within.var = 36)$power,
      size = function() {
        power.anova.test(groups = 3, between.var = var(three_means), within.var = 36, power = 0.8)$n
      })),
  "anova-small-effect" = list(
    pwr = list(
      power = function() pwr.anova.test(k = 5, n = 240, f = 0.1)$power,
      size = function() pwr.anova.test(k = 5, f = 0.1, power = 0.8)$n),
    R = list(
      power = function() power.anova.test(groups = 5, n = 240, between.var = 0.1^2 * 5 / 4, within.var = 1)$power,
      size = function() power.anova.test(groups = 5, between.var = 0.1^2 * 5 / 4, within.var = 1, power = 0.8)$n)),
  "one-proportion" = list(
    pwr = list(
      power = function() pwr.p.test(n = 50, h = ES.h(0.7, 0.5))$power,
      size = function() pwr.p.test(h = ES.h(0.7, 0.5), power = 0.8)$n)),
  "two-proportions-z" = list(
    R = list(
      power = function() power.prop.test(n = 100, p1 = 0.3, p2 = 0.5, strict = TRUE)$power,
      size = function() power.prop.test(p1 = 0.3, p2 = 0.5, power = 0.8, strict = TRUE)$n)),
  "two-proportions-arcsine" = list(
    pwr = list(
      power = function() pwr.2p.test(n = 100, h = two_proportions_h)$power,
      size = function() pwr.2p.test(h = two_proportions_h, power = 0.8)$n)),
  "two-proportions-unequal" = list(
    pwr = list(power = function() pwr.2p2n.test(n1 = 80, n2 = 160, h = two_proportions_h)$power)),
  "correlation" = list(
    pwr = list(
      power = function() pwr.r.test(n = 85, r = 0.3)$power,
      size = function() pwr.r.test(r = 0.3, power = 0.8)$n)),
  # Five predictors; the number of cases is that of the error degrees of freedom and 6.
  "regression" = list(
    pwr = list(
      power = function() pwr.f2.test(u = 5, v = 89, f2 = 1 / 9)$power,
      size = function() pwr.f2.test(u = 5, f2 = 1 / 9, power = 0.8)$v + 6)))

print_line <- function(...) cat(paste(..., sep = "\t"), "\n", sep = "")

for (design in names(designs)) {
  for (program in names(designs[[design]])) {
    calls <- designs[[design]][[program]]
    for (question in names(calls)) {
      call <- calls[[question]]
      print_line(program, design, question, sprintf("%.17g", call()), sprintf("%.6g", seconds_per_call(call)))
    }
  }
}
print_line("version", "R", getRversion())
print_line("version", "pwr", packageVersion("pwr"))
