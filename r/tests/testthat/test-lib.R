reference <- utils::read.csv(test_path("references.csv"), stringsAsFactors = FALSE)

# The numbers of a result one after another.
flat <- function(result) {
  if (!is.list(result)) return(result)
  if (!is.null(result$z)) result$z <- t(result$z)
  unlist(result, use.names = FALSE)
}

numbers_of <- function(text) eval(parse(text = text))

test_that("every function answers its reference cases", {
  expect_true(all(names(kp_lib) %in% reference$name))
  for (i in seq_len(nrow(reference))) {
    result <- flat(do.call(kp_lib[[reference$name[i]]], numbers_of(reference$arguments[i])))
    expected <- numbers_of(reference$result[i])
    expect_identical(length(result), length(expected), label = reference$name[i])
    expect_identical(is.na(result), is.na(expected), label = reference$name[i])
    error <- abs(result - expected) / pmax(1, abs(expected))
    expect_lt(max(0, error, na.rm = TRUE), reference$bound[i], label = reference$name[i])
  }
})

test_that("vectors are recycled", {
  effects <- c(0.2, 0.5, 0.8)
  powers <- kp_lib$PowerIndependentNondirectionalES(64, 64, effects, 0.05)
  expect_identical(powers, vapply(effects, function(d) kp_lib$PowerIndependentNondirectionalES(64, 64, d, 0.05), 0))
  sizes <- kp_lib$PowerReverseOverallTest(3, list(c(10, 12, 15), c(10, 11, 12)), 6, c(1, 1, 1), 0.9, 0.05)
  expect_identical(sizes$value, c(111, 687))
  expect_identical(sizes$sizes[[1]], c(37, 37, 37))
  expect_error(kp_lib$PowerIndependentNondirectionalES(c(1, 2), c(1, 2, 3), 0.5, 0.05), class = "kelpower_input_error")
  expect_identical(kp_lib$InvTanh(numeric()), numeric())
})

test_that("arrays have as many numbers as there are groups", {
  expect_error(kp_lib$PowerOverallTest(4, c(1, 2, 3), 1, c(9, 9, 9), 0.05), "numGroups", class = "kelpower_input_error")
  expect_error(kp_lib$PowerPairwiseDiff(3, 1:3, 1, c(9, 9, 9), 1, 5, 2, 0.05), "number of a group",
               class = "kelpower_input_error")
  expect_error(kp_lib$PowerOverallTest(NA, c(1, 2), 1, c(9, 9), 0.05), class = "kelpower_input_error")
  expect_error(kp_lib$HalfCIOverallTest(20, NA, 1, 0.05), "missing")
  expect_error(kp_lib$InvTanh("a"), class = "kelpower_input_error")
})

test_that("the caller's arrays stay as they are", {
  coefficients <- c(1, 2, 3)
  kp_lib$EffectSizeSC(3, c(1, 2, 3), 1, coefficients)
  expect_identical(coefficients, c(1, 2, 3))
})
