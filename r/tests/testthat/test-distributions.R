test_that("distributions agree with R's where R is accurate", {
  x <- c(-3, -1, 0, 0.5, 2)
  p <- c(1e-10, 0.01, 0.3, 0.5, 0.99)
  expect_equal(kp_pnorm(x, 1, 2), pnorm(x, 1, 2), tolerance = 1e-13)
  expect_equal(kp_pnorm(x + 9, lower.tail = FALSE), pnorm(x + 9, lower.tail = FALSE), tolerance = 1e-12)
  expect_equal(kp_qnorm(p, 1, 2), qnorm(p, 1, 2), tolerance = 1e-13)
  expect_equal(kp_pt(x, 7), pt(x, 7), tolerance = 1e-13)
  expect_equal(kp_pt(x, 7, 1.5, lower.tail = FALSE), pt(x, 7, 1.5, lower.tail = FALSE), tolerance = 1e-9)
  expect_equal(kp_qt(p, 7, lower.tail = FALSE), qt(p, 7, lower.tail = FALSE), tolerance = 1e-12)
  expect_equal(kp_pf(x^2, 3, 20), pf(x^2, 3, 20), tolerance = 1e-13)
  expect_equal(kp_pf(c(0, 50, 500), 3, 20, lower.tail = FALSE), pf(c(0, 50, 500), 3, 20, lower.tail = FALSE), tolerance = 1e-12)
  expect_equal(kp_pf(x^2, 3, 20, 4), pf(x^2, 3, 20, 4), tolerance = 1e-9)
  expect_equal(kp_qf(p, 3, 20, lower.tail = FALSE), qf(p, 3, 20, lower.tail = FALSE), tolerance = 1e-12)
  expect_equal(kp_pbeta(p, 2, 5, lower.tail = FALSE), pbeta(p, 2, 5, lower.tail = FALSE), tolerance = 1e-13)
  expect_equal(kp_qbeta(p, 2, 5), qbeta(p, 2, 5), tolerance = 1e-12)
  expect_equal(kp_dbinom(-1:11, 10, 0.3), dbinom(-1:11, 10, 0.3), tolerance = 1e-13)
  expect_equal(kp_pbinom(-1:11, 10, 0.3), pbinom(-1:11, 10, 0.3), tolerance = 1e-13)
  expect_equal(kp_pbinom(c(0, 3, 10), 10, 1e-9, lower.tail = FALSE), pbinom(c(0, 3, 10), 10, 1e-9, lower.tail = FALSE),
               tolerance = 1e-12)
  expect_identical(kp_qbinom(c(0, p, 1), 10, 0.3), as.numeric(qbinom(c(0, p, 1), 10, 0.3)))
  expect_equal(kp_dnbinom(0:20, 3, 0.2), dnbinom(0:20, 3, 0.2), tolerance = 1e-13)
  expect_equal(kp_lgamma(c(0.5, 3, -1.5)), lgamma(c(0.5, 3, -1.5)), tolerance = 1e-13)
})

test_that("the noncentral t is right where R's is not", {
  # Symmetry, and the normal limit.
  expect_equal(kp_pt(50, 1e7, 50), 0.5, tolerance = 1e-3)
  expect_equal(kp_pt(45, 20, 40) + kp_pt(45, 20, 40, lower.tail = FALSE), 1, tolerance = 1e-14)
})

test_that("missing goes through, and what is outside the domain is missing", {
  expect_identical(kp_pnorm(c(NA, NaN, 0)), c(NA, NaN, 0.5))
  expect_identical(kp_pt(1, -1), NA_real_)
  expect_identical(kp_pnorm(0, sd = -1), NA_real_)
  expect_identical(kp_qf(1.5, 2, 3), NA_real_)
  expect_identical(kp_pbinom(1, -1, 0.5), NA_real_)
  expect_identical(kp_pt(numeric(), 3), numeric())
})

test_that("arguments are recycled and shapes kept", {
  m <- matrix(c(-1, 0, 1, 2), 2, dimnames = list(c("a", "b"), NULL))
  expect_identical(dimnames(kp_pnorm(m)), dimnames(m))
  expect_identical(kp_pt(1, c(3, 5)), c(kp_pt(1, 3), kp_pt(1, 5)))
  expect_identical(kp_pf(2, 3, 20, c(0, 1))[1], kp_pf(2, 3, 20, 0))
})
