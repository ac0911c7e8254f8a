test_that("a chart is a data frame of points", {
  r <- kp_two_means(effect_d = 0.5, power = 0.8)
  points <- kp_chart(r, from = 60, to = 64)
  expect_identical(points$n, c(60, 61, 62, 63, 64))
  expect_identical(points$power[5], r$power)
  curves <- kp_chart(kp_two_means(effect_d = c(0.5, 0.8), power = 0.8), from = 60, to = 63)
  expect_identical(curves$effect_d, rep(c(0.5, 0.8), each = 4))
  surface <- kp_chart(kp_anova(means = c(1, 2, 3), sd = 4, n = 20), "n-sd", from = c(20, 3), to = c(22, 4))
  expect_identical(names(surface)[1:3], c("n", "sd", "power"))
  for (i in c(1, 7, nrow(surface))) {
    one <- kp_anova(means = c(1, 2, 3), sd = surface$sd[i], n = round(surface$n[i]))
    if (surface$n[i] == round(surface$n[i])) expect_equal(surface$power[i], one$power, tolerance = 1e-6)
  }
  expect_gt(length(unique(surface$power)), 3)
})

test_that("charts are drawn", {
  pdf(NULL)
  on.exit(dev.off())
  r <- kp_two_means(effect_d = c(0.2, 0.5), power = 0.8)
  expect_s3_class(plot(r), "kelpower_chart")
  expect_s3_class(plot(kp_two_means(effect_d = 0.5, power = 0.8), "effect_d", y = "n"), "kelpower_chart")
  expect_s3_class(plot(kp_anova(means = c(1, 2, 3), sd = 4, n = 20), "n-sd"), "kelpower_chart")
})

test_that("a chart that cannot be is refused", {
  expect_error(plot(kp_mean(effect_d = 0.5, power = 0.8), "groups"), class = "kelpower_input_error")
  expect_error(kp_chart(kp_mean(effect_d = c(0.5, 0.6), power = c(0.8, 0.9))), class = "kelpower_input_error")
})
