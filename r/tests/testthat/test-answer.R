test_that("what is left out is solved for", {
  r <- kp_two_means(effect_d = 0.5, power = 0.8)
  expect_s3_class(r, c("kelpower", "power.htest"), exact = TRUE)
  expect_identical(r$n, c(64, 64))
  expect_equal(r$power, 0.8014595579222541, tolerance = 1e-13)
  expect_identical(r$target_power, 0.8)
  expect_identical(kp_two_means(effect_d = 0.5, n = 64)$power, r$power)
  expect_identical(kp_two_means(effect_d = 0.5, n = c(64, 64))$power, r$power)
  expect_identical(kp_mean(mean = 104, test_value = 100, sd = 10, n = 40)$question, "power")
})

test_that("the fields of base R stand beside ours", {
  r <- kp_two_means(effect_d = 0.5, power = 0.8, one_sided = TRUE)
  expect_identical(r$sig.level, r$alpha)
  expect_identical(r$d, r$effect_d)
  expect_identical(r$alternative, "one.sided")
  expect_identical(r$note, "n is the number in *each* group")
  expect_match(r$method, "t test")
  p <- kp_two_proportions(proportion1 = 0.3, proportion2 = 0.5, n = 100, method = "arcsine")
  expect_identical(c(p$p1, p$p2), c(0.3, 0.5))
  expect_match(p$method, "proportions")
  expect_identical(p$inputs$method, "arcsine")
  base <- power.t.test(delta = 0.5, power = 0.8)
  expect_true(all(setdiff(names(base), c("delta", "sd")) %in% names(r)))
})

test_that("other names of arguments are known, and parts of names are not", {
  expect_identical(kp_anova(f = 0.3, groups = 3, group_sizes = 20)$power, kp_anova(effect_f = 0.3, groups = 3, n = 20)$power)
  expect_error(kp_two_means(effect = 0.5, power = 0.8), class = "kelpower_input_error")
})

test_that("an answer is a row of a data frame", {
  rows <- as.data.frame(kp_two_means(effect_d = 0.5, power = 0.8))
  expect_identical(nrow(rows), 1L)
  expect_identical(rows[c("n1", "n2", "total")], data.frame(n1 = 64, n2 = 64, total = 128))
})

test_that("answers look as they should", {
  expect_snapshot(kp_two_means(effect_d = 0.5, power = 0.8))
  expect_snapshot(kp_anova(means = c(10, 12, 15), sd = 6, power = 0.9))
  expect_snapshot(kp_two_means(effect_d = c(0.2, 0.5, 0), power = 0.9))
  expect_snapshot(summary(kp_mean(effect_d = 0.4, n = 40)))
  expect_snapshot(kp_effect(t = 2.3, n = c(20, 20)))
})

test_that("values stand under each other, clear of their labels", {
  lines <- format(kp_proportion(proportion = 0.6, null = 0.5, power = 0.8, exact = TRUE))
  expect_true("  all larger sizes reach it from  210" %in% lines)
  expect_true("  sample size                     199" %in% lines)
})

test_that("methods of other packages work where these are", {
  r <- kp_two_means(effect_d = c(0.2, 0.5), power = 0.9)
  if (requireNamespace("generics", quietly = TRUE)) {
    expect_identical(generics::tidy(r), as.data.frame(r))
    expect_identical(generics::glance(r)$designs, 2L)
  }
  if (requireNamespace("knitr", quietly = TRUE)) {
    expect_match(knitr::knit_print(kp_two_means(effect_d = 0.5, power = 0.8)), "| ?power", fixed = FALSE)
  }
  if (requireNamespace("ggplot2", quietly = TRUE)) {
    expect_s3_class(ggplot2::autoplot(r), "ggplot")
  }
})

test_that("a summary tells what is behind an answer", {
  s <- summary(kp_two_means(effect_d = 0.5, power = 0.8))
  expect_identical(s$details$figures$df, 126)
  expect_match(s$details$formula, "noncentrality")
  expect_identical(s$calls$r, "kp_two_means(effect_d = 0.5, power = 0.8)")
})

test_that("the calls that an answer names give the same answer", {
  for (test in tests()) {
    for (example in test$examples) {
      inputs <- setNames(example$inputs, underscored(names(example$inputs)))
      r <- do.call(paste0("kp_", underscored(test$name)), inputs)
      again <- eval(parse(text = summary(r)$calls$r))
      expect_identical(again$results, r$results)
      expect_identical(r$sentence, example$sentence)
    }
  }
})
