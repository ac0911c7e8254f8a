test_that("a vector gives a design for each element", {
  effects <- c(0.2, 0.4, 0.6, 0.8)
  r <- kp_two_means(effect_d = effects, power = 0.9)
  expect_identical(r$total, c(1054, 266, 120, 68))
  for (i in seq_along(effects)) {
    one <- kp_two_means(effect_d = effects[i], power = 0.9)
    expect_identical(r$n[i, ], one$n)
    expect_identical(r$power[i], one$power)
  }
})

test_that("rows with their own flags, words, lists and lengths of lists answer as they do alone", {
  designs <- list(
    list(kp_two_means, effect_d = c(0.3, 0.5, 0.7), power = c(0.8, 0.9, 0.95), one_sided = c(TRUE, FALSE, TRUE)),
    list(kp_anova, means = list(c(1, 2, 3), c(1, 2), c(2, 4, 7)), sd = c(2, 3, 4), n = list(20, c(10, 15), 30)),
    list(kp_pairwise, pair = c(1, 2), groups = c(3, 4, 3), effect_d = 0.5, n = 30, adjust = c("none", "sidak", "none")),
    list(kp_mean, effect_d = 0.5, n = c(20, 30, 40), alpha = c(0.05, 0.01, 0.05)),
    list(kp_pearson, r = c(0.1, 0.3, 0.5), power = 0.8),
    list(kp_two_proportions, proportion1 = 0.3, proportion2 = 0.5, method = c("z", "conditional", "t"), power = 0.8),
    list(kp_regression, r_squared = 0.1, predictors = c(2, 3, 5), n = 100),
    list(kp_anova, means = matrix(c(1, 2, 3, 2, 4, 6, 1, 1, 2), 3, byrow = TRUE), sd = 4, power = 0.8))
  for (design in designs) {
    call <- design[[1]]
    arguments <- design[-1]
    together <- as.data.frame(do.call(call, arguments))
    expect_identical(nrow(together), 3L)
    for (i in 1:3) {
      alone <- lapply(arguments, function(value) {
        if (is.matrix(value)) value[i, ] else if (is.list(value)) value[[i]] else if (length(value) == 3) value[i] else value
      })
      one <- as.data.frame(do.call(call, alone))
      for (name in names(one)) expect_identical(together[[name]][i], one[[name]], label = name)
    }
  }
})

test_that("a flag stays what it was where only some designs have a use for it", {
  r <- as.data.frame(kp_proportion(proportion = 0.6, null = 0.5, n = 100, exact = c(FALSE, TRUE)))
  expect_identical(r$exact, c(FALSE, TRUE))
  expect_identical(is.na(r$attained_level), c(TRUE, FALSE))
})

test_that("a design without an answer is NA and tells why", {
  r <- kp_two_means(effect_d = c(0.5, 0, NA, -2e6), power = 0.8)
  expect_identical(r$status, c(0L, 3L, 2L, 2L))
  expect_identical(is.na(r$total), c(FALSE, TRUE, TRUE, TRUE))
  expect_false(any(is.nan(r$total)))
  problems <- kp_problems(r)
  expect_identical(problems$design, 2:4)
  expect_match(problems$message[1], "no sample size")
  expect_identical(as.data.frame(r)$error, c(NA, "no-solution", "input", "input"))
  expect_identical(nrow(kp_problems(kp_two_means(effect_d = c(0.5, 0.6), power = 0.8))), 0L)
})

test_that("vectors must be of one length or of length 1", {
  e <- expect_error(kp_two_means(effect_d = c(0.2, 0.5), power = c(0.7, 0.8, 0.9)), class = "kelpower_input_error")
  expect_identical(e$parameter, "effect_d")
  expect_error(kp_two_means(effect_d = numeric(), power = 0.8), "is empty", class = "kelpower_input_error")
})

test_that("a grid has all combinations, the last argument varying fastest", {
  g <- as.data.frame(kp_grid(kp_two_means, effect_d = c(0.2, 0.5, 0.8), power = c(0.8, 0.9)))
  expect_identical(g$effect_d, rep(c(0.2, 0.5, 0.8), each = 2))
  expect_identical(g$target_power, rep(c(0.8, 0.9), 3))
  expect_identical(g$n1[3], 64)
  expect_identical(kp_grid("two-means", effect_d = 0.5, power = 0.8)$n, c(64, 64))
  m <- kp_grid(kp_anova, means = list(c(1, 2, 4), c(1, 2)), sd = c(3, 4), n = 20)
  expect_identical(m$power[3], kp_anova(means = c(1, 2), sd = 3, n = 20)$power)
  expect_error(kp_grid(mean, n = 1), class = "kelpower_input_error")
})

test_that("each example of each test answers in a vector as it does alone", {
  for (test in tests()) {
    name <- underscored(test$name)
    kinds <- kinds_of(name)
    for (example in test$examples) {
      inputs <- setNames(example$inputs, underscored(names(example$inputs)))
      one <- as.data.frame(do.call(paste0("kp_", name), inputs))
      for (input in names(inputs)) {
        doubled <- inputs
        doubled[[input]] <- if (is_list_kind(kinds[input])) rep(list(inputs[[input]]), 2) else rep(inputs[[input]], 2)
        two <- as.data.frame(do.call(paste0("kp_", name), doubled))
        for (column in names(one)) {
          expect_equal(two[[column]], rep(one[[column]], 2), tolerance = 1e-12, label = paste(name, input, column))
        }
      }
    }
  }
})
