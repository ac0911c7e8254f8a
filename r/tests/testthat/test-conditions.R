test_that("errors have a class and fields", {
  e <- expect_error(kp_two_means(effect_d = 0.5, power = 2), class = "kelpower_input_error")
  expect_s3_class(e, "kelpower_error")
  expect_identical(e$parameter, "power")
  expect_identical(e$value, 2)
  expect_match(e$message, "between 0 and 1")
  expect_identical(as.character(conditionCall(e)[[1]]), "kp_two_means")
  e <- expect_error(kp_two_means(effect_d = 0, power = 0.8), class = "kelpower_no_solution")
  expect_identical(e$code, "no-effect")
})

test_that("names in messages are those of the arguments", {
  e <- expect_error(kp_two_means(one_sided = TRUE), class = "kelpower_input_error")
  expect_false(grepl("--|effect-d", conditionMessage(e)))
})

test_that("wrong arguments are refused", {
  expect_error(kp_two_means(0.5, power = 0.8), "by their names", class = "kelpower_input_error")
  expect_error(kp_two_means(effect_d = "a", power = 0.8), class = "kelpower_input_error")
  expect_error(kp_two_means(effect_d = NA, power = 0.8), "missing", class = "kelpower_input_error")
  expect_error(kp_two_means(effect_d = Inf, power = 0.8), "finite", class = "kelpower_input_error")
  expect_error(kp_two_means(effect_d = sum, power = 0.8), class = "kelpower_input_error")
  expect_error(kp_two_means(nonsense = 1, power = 0.8), "no input", class = "kelpower_input_error")
  expect_error(kp_two_proportions(proportions = c(0.1, 0.2), n = 50, method = "guess"), class = "kelpower_input_error")
})

test_that("an interrupt stops a long computation and is seen as one", {
  skip_on_os("windows")
  skip_on_cran()
  script <- tempfile(fileext = ".R")
  writeLines(c(
    "library(kelpower)",
    "cat('started\\n', file = stdout())",
    "r <- tryCatch(",
    "  { kp_two_proportions(proportion1 = 0.5, proportion2 = seq(0.55, 0.56, length.out = 1000), exact = TRUE, power = 0.9)",
    "    'finished' },",
    "  interrupt = function(e) 'interrupted')",
    "cat(r, kp_two_means(effect_d = 0.5, power = 0.8)$total, '\\n')"), script)
  output <- tempfile()
  command <- sprintf(
    "%s --vanilla %s > %s 2>&1 & pid=$!; while kill -0 $pid && ! grep -q started %s; do sleep 0.2; done; sleep 1; kill -INT $pid; wait $pid",
    shQuote(file.path(R.home("bin"), "Rscript")), shQuote(script), shQuote(output), shQuote(output))
  libraries <- paste(.libPaths(), collapse = .Platform$path.sep)
  system2("sh", c("-c", shQuote(paste0("R_LIBS=", shQuote(libraries), "; export R_LIBS; ", command))))
  expect_identical(trimws(tail(readLines(output), 1)), "interrupted 128")
})
