pwr <- pwr_compat(attach = FALSE)

answer_of <- function(text) eval(parse(text = text), pwr)

# The examples of the manual of pwr 1.3-0 that give a number, with what it gives.
examples <- utils::read.csv(test_path("pwr-examples.csv"), stringsAsFactors = FALSE)

test_that("the examples of pwr's manual give the numbers of pwr", {
  for (i in seq_len(nrow(examples))) {
    answer <- answer_of(examples$call[i])
    expect_s3_class(answer, "power.htest")
    expect_equal(answer[[examples$field[i]]], examples$value[i], tolerance = 1e-6, label = examples$call[i])
  }
})

test_that("effects and levels that are solved for give back the power", {
  calls <- c("pwr.t.test(n = 20, power = 0.75)", "pwr.t.test(n = 20, power = 0.75, alternative = 'less')",
             "pwr.t.test(n = 20, d = 0.5, power = 0.75, sig.level = NULL)", "pwr.t2n.test(n1 = 30, n2 = 90, power = 0.9)",
             "pwr.r.test(n = 50, power = 0.8)", "pwr.r.test(n = 50, power = 0.8, alternative = 'less')",
             "pwr.p.test(n = 60, power = 0.9)", "pwr.2p.test(n = 80, power = 0.8)", "pwr.anova.test(k = 4, n = 20, power = 0.8)",
             "pwr.anova.test(n = 20, f = 0.28, power = 0.8)", "pwr.chisq.test(N = 100, df = 20, power = 0.8)",
             "pwr.f2.test(u = 5, v = 89, power = 0.8)", "pwr.f2.test(v = 89, f2 = 0.3, power = 0.99)")
  for (text in calls) {
    solved <- unclass(answer_of(text))
    again <- solved[setdiff(names(solved), c("power", "note", "method"))]
    name <- sub("\\(.*", "", text)
    if (!"sig.level" %in% names(again)) again$sig.level <- solved$sig.level
    expect_equal(do.call(pwr[[name]], again)$power, solved$power, tolerance = 1e-10, label = text)
  }
})

test_that("calls at which pwr stops with an error have an answer", {
  expect_equal(answer_of("pwr.t.test(d = 7, power = .8)")$n, 1.845846352, tolerance = 1e-9)
  expect_equal(answer_of("pwr.anova.test(k = 2, f = .7, power = .1)")$n, 1.677671353, tolerance = 1e-9)
  expect_equal(answer_of("pwr.t.test(n = 3, sig.level = .001, power = .99)")$d, 13.07119787, tolerance = 1e-9)
  expect_equal(answer_of("pwr.r.test(r = .999, power = .8)")$n, 3.325673943, tolerance = 1e-9)
  # Each is a solution.
  expect_equal(answer_of("pwr.t.test(n = 1.845846352, d = 7)")$power, 0.8, tolerance = 1e-8)
  expect_equal(answer_of("pwr.anova.test(k = 2, n = 1.677671353, f = .7)")$power, 0.1, tolerance = 1e-8)
  expect_equal(answer_of("pwr.t.test(n = 3, d = 13.07119787, sig.level = .001)")$power, 0.99, tolerance = 1e-8)
  expect_equal(answer_of("pwr.r.test(n = 3.325673943, r = .999)")$power, 0.8, tolerance = 1e-8)
})

test_that("the sizes of kelpower are those of pwr, rounded up", {
  expect_identical(kp_two_means(effect_d = 0.3, power = 0.8)$n[1], ceiling(pwr$pwr.t.test(d = 0.3, power = 0.8)$n))
  expect_identical(kp_anova(f = 0.28, groups = 4, power = 0.8)$n[1], ceiling(pwr$pwr.anova.test(k = 4, f = 0.28, power = 0.8)$n))
})

test_that("power may be asked of vectors", {
  d <- seq(-1, 1, length.out = 5)
  expect_identical(pwr$pwr.norm.test(d = d, n = 20, alternative = "greater")$power,
                   vapply(d, function(each) pwr$pwr.norm.test(d = each, n = 20, alternative = "greater")$power, 0))
})

test_that("wrong calls are refused", {
  expect_error(pwr$pwr.t.test(d = 0.5), "exactly one")
  expect_error(pwr$pwr.t.test(d = 0.5, n = 20, power = 0.8), "exactly one")
  expect_error(pwr$pwr.t.test(d = 0.5, power = 1.5), "power must be in")
  expect_error(pwr$pwr.t.test(d = 0, power = 0.8), "no n")
  expect_error(pwr$pwr.t.test(d = 0.5, power = 0.04), "always above")
  expect_error(pwr$pwr.r.test(r = 1.5, n = 20), "r must be")
  expect_error(pwr$pwr.t.test(d = c(0.5, 0.6), power = 0.8), "one n at a time")
})

test_that("answers print as base R's do, and are drawn", {
  expect_output(print(pwr$pwr.t.test(d = 0.3, power = 0.75)), "Two-sample t test power calculation")
  pdf(NULL)
  on.exit(dev.off())
  expect_s3_class(pwr$plot.power.htest(pwr$pwr.t.test(d = 0.3, power = 0.8), xlab = "sample size per group"), "power.htest")
})

test_that("they are attached on demand, once", {
  pwr_compat()
  pwr_compat()
  on.exit(detach("kelpower::pwr_compat", character.only = TRUE))
  expect_identical(sum(search() == "kelpower::pwr_compat"), 1L)
  pdf(NULL)
  on.exit(dev.off(), add = TRUE)
  drawn <- evalq(plot(pwr.t.test(d = 0.3, power = 0.8)), globalenv())
  expect_equal(drawn$n, 175.3847, tolerance = 1e-6)
})
