test_that("effect sizes are those of the library", {
  e <- kp_effect(t = 2.3, n = c(20, 20))
  expect_equal(e$results$d, 0.7273238618387272, tolerance = 1e-12)
  rows <- as.data.frame(e)
  expect_identical(rows$value[rows$effect == "d"], e$results$d)
  expect_identical(rows$lower[rows$effect == "d"], e$results$d_lower)
  expect_error(kp_effect(t = 2.3), class = "kelpower_input_error")
})
