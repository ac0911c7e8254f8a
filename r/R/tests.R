# Written by tools/r/generate.py from the library's descriptions.

kp_anova <- function(..., means = NULL, sd = NULL, effect_f = NULL, eta_squared = NULL, n = NULL,
                     ratios = NULL, groups = NULL, power = NULL, interval = NULL, half_width = NULL,
                     alpha = NULL, comparisons = NULL, dropout = NULL, solve = NULL) {
  solve_test("anova", list(..., means = means, sd = sd, effect_f = effect_f, eta_squared = eta_squared,
                           n = n, ratios = ratios, groups = groups, power = power, interval = interval,
                           half_width = half_width, alpha = alpha, comparisons = comparisons,
                           dropout = dropout, solve = solve), sys.call())
}

kp_contrast <- function(..., coefficients = NULL, means = NULL, sd = NULL, effect_d = NULL, n = NULL,
                        ratios = NULL, one_sided = NULL, power = NULL, interval = NULL, half_width = NULL,
                        alpha = NULL, comparisons = NULL, dropout = NULL, assurance = NULL, solve = NULL) {
  solve_test("contrast", list(..., coefficients = coefficients, means = means, sd = sd, effect_d = effect_d,
                              n = n, ratios = ratios, one_sided = one_sided, power = power,
                              interval = interval, half_width = half_width, alpha = alpha,
                              comparisons = comparisons, dropout = dropout, assurance = assurance,
                              solve = solve), sys.call())
}

kp_pairwise <- function(..., pair = NULL, means = NULL, sd = NULL, effect_d = NULL, n = NULL, ratios = NULL,
                        groups = NULL, adjust = NULL, power = NULL, interval = NULL, half_width = NULL,
                        alpha = NULL, dropout = NULL, solve = NULL) {
  solve_test("pairwise", list(..., pair = pair, means = means, sd = sd, effect_d = effect_d, n = n,
                              ratios = ratios, groups = groups, adjust = adjust, power = power,
                              interval = interval, half_width = half_width, alpha = alpha, dropout = dropout,
                              solve = solve), sys.call())
}

kp_tukey <- function(..., pair = NULL, means = NULL, sd = NULL, effect_d = NULL, n = NULL, ratios = NULL,
                     groups = NULL, power = NULL, interval = NULL, half_width = NULL, alpha = NULL,
                     dropout = NULL, solve = NULL) {
  solve_test("tukey", list(..., pair = pair, means = means, sd = sd, effect_d = effect_d, n = n,
                           ratios = ratios, groups = groups, power = power, interval = interval,
                           half_width = half_width, alpha = alpha, dropout = dropout,
                           solve = solve), sys.call())
}

kp_dunnett <- function(..., group = NULL, all_comparisons = NULL, means = NULL, sd = NULL, effect_d = NULL,
                       n = NULL, ratios = NULL, groups = NULL, one_sided = NULL, power = NULL,
                       interval = NULL, half_width = NULL, alpha = NULL, dropout = NULL, solve = NULL) {
  solve_test("dunnett", list(..., group = group, all_comparisons = all_comparisons, means = means, sd = sd,
                             effect_d = effect_d, n = n, ratios = ratios, groups = groups,
                             one_sided = one_sided, power = power, interval = interval,
                             half_width = half_width, alpha = alpha, dropout = dropout,
                             solve = solve), sys.call())
}

kp_factorial <- function(..., levels = NULL, term = NULL, means = NULL, sd = NULL, effect_f = NULL,
                         eta_squared = NULL, n = NULL, ratios = NULL, power = NULL, alpha = NULL,
                         comparisons = NULL, dropout = NULL, solve = NULL) {
  solve_test("factorial", list(..., levels = levels, term = term, means = means, sd = sd,
                               effect_f = effect_f, eta_squared = eta_squared, n = n, ratios = ratios,
                               power = power, alpha = alpha, comparisons = comparisons, dropout = dropout,
                               solve = solve), sys.call())
}

kp_ancova <- function(..., means = NULL, sd = NULL, effect_f = NULL, covariates = NULL, r_squared = NULL,
                      n = NULL, ratios = NULL, groups = NULL, approximate = NULL, power = NULL, alpha = NULL,
                      comparisons = NULL, dropout = NULL, solve = NULL) {
  solve_test("ancova", list(..., means = means, sd = sd, effect_f = effect_f, covariates = covariates,
                            r_squared = r_squared, n = n, ratios = ratios, groups = groups,
                            approximate = approximate, power = power, alpha = alpha,
                            comparisons = comparisons, dropout = dropout, solve = solve), sys.call())
}

kp_repeated_measures <- function(..., effect = NULL, measurements = NULL, means = NULL, coefficients = NULL,
                                 sd = NULL, effect_f = NULL, eta_squared = NULL, f_of = NULL,
                                 correlation = NULL, epsilon = NULL, n = NULL, ratios = NULL, groups = NULL,
                                 power = NULL, alpha = NULL, comparisons = NULL, dropout = NULL,
                                 solve = NULL) {
  solve_test("repeated_measures", list(..., effect = effect, measurements = measurements, means = means,
                                       coefficients = coefficients, sd = sd, effect_f = effect_f,
                                       eta_squared = eta_squared, f_of = f_of, correlation = correlation,
                                       epsilon = epsilon, n = n, ratios = ratios, groups = groups,
                                       power = power, alpha = alpha, comparisons = comparisons,
                                       dropout = dropout, solve = solve), sys.call())
}

kp_mean <- function(..., mean = NULL, test_value = NULL, sd = NULL, effect_d = NULL, n = NULL,
                    one_sided = NULL, margin = NULL, non_inferiority = NULL, superiority = NULL,
                    equivalence = NULL, power = NULL, interval = NULL, half_width = NULL, alpha = NULL,
                    comparisons = NULL, dropout = NULL, population = NULL, assurance = NULL,
                    effect_sd = NULL, solve = NULL, below = NULL) {
  solve_test("mean", list(..., mean = mean, test_value = test_value, sd = sd, effect_d = effect_d, n = n,
                          one_sided = one_sided, margin = margin, non_inferiority = non_inferiority,
                          superiority = superiority, equivalence = equivalence, power = power,
                          interval = interval, half_width = half_width, alpha = alpha,
                          comparisons = comparisons, dropout = dropout, population = population,
                          assurance = assurance, effect_sd = effect_sd, solve = solve,
                          below = below), sys.call())
}

kp_paired_means <- function(..., means = NULL, sds = NULL, correlation = NULL, mean_difference = NULL,
                            sd_difference = NULL, effect_d = NULL, n = NULL, one_sided = NULL, margin = NULL,
                            non_inferiority = NULL, superiority = NULL, equivalence = NULL, power = NULL,
                            interval = NULL, half_width = NULL, alpha = NULL, comparisons = NULL,
                            dropout = NULL, assurance = NULL, effect_sd = NULL, solve = NULL, below = NULL) {
  solve_test("paired_means", list(..., means = means, sds = sds, correlation = correlation,
                                  mean_difference = mean_difference, sd_difference = sd_difference,
                                  effect_d = effect_d, n = n, one_sided = one_sided, margin = margin,
                                  non_inferiority = non_inferiority, superiority = superiority,
                                  equivalence = equivalence, power = power, interval = interval,
                                  half_width = half_width, alpha = alpha, comparisons = comparisons,
                                  dropout = dropout, assurance = assurance, effect_sd = effect_sd,
                                  solve = solve, below = below), sys.call())
}

kp_two_means <- function(..., means = NULL, mean_difference = NULL, sd = NULL, effect_d = NULL,
                         mean_ratio = NULL, cv = NULL, n = NULL, ratio = NULL, one_sided = NULL,
                         margin = NULL, non_inferiority = NULL, superiority = NULL, equivalence = NULL,
                         power = NULL, interval = NULL, half_width = NULL, alpha = NULL, comparisons = NULL,
                         dropout = NULL, cluster_size = NULL, icc = NULL, cluster_cv = NULL,
                         assurance = NULL, effect_sd = NULL, solve = NULL, below = NULL) {
  solve_test("two_means", list(..., means = means, mean_difference = mean_difference, sd = sd,
                               effect_d = effect_d, mean_ratio = mean_ratio, cv = cv, n = n, ratio = ratio,
                               one_sided = one_sided, margin = margin, non_inferiority = non_inferiority,
                               superiority = superiority, equivalence = equivalence, power = power,
                               interval = interval, half_width = half_width, alpha = alpha,
                               comparisons = comparisons, dropout = dropout, cluster_size = cluster_size,
                               icc = icc, cluster_cv = cluster_cv, assurance = assurance,
                               effect_sd = effect_sd, solve = solve, below = below), sys.call())
}

kp_crossover <- function(..., mean_difference = NULL, sd = NULL, mean_ratio = NULL, cv = NULL, n = NULL,
                         one_sided = NULL, margin = NULL, non_inferiority = NULL, superiority = NULL,
                         equivalence = NULL, power = NULL, interval = NULL, half_width = NULL, alpha = NULL,
                         comparisons = NULL, dropout = NULL, solve = NULL, below = NULL) {
  solve_test("crossover", list(..., mean_difference = mean_difference, sd = sd, mean_ratio = mean_ratio,
                               cv = cv, n = n, one_sided = one_sided, margin = margin,
                               non_inferiority = non_inferiority, superiority = superiority,
                               equivalence = equivalence, power = power, interval = interval,
                               half_width = half_width, alpha = alpha, comparisons = comparisons,
                               dropout = dropout, solve = solve, below = below), sys.call())
}

kp_mann_whitney <- function(..., effect_d = NULL, parent = NULL, superiority = NULL, method = NULL, n = NULL,
                            ratio = NULL, one_sided = NULL, power = NULL, alpha = NULL, comparisons = NULL,
                            dropout = NULL, solve = NULL, below = NULL) {
  solve_test("mann_whitney", list(..., effect_d = effect_d, parent = parent, superiority = superiority,
                                  method = method, n = n, ratio = ratio, one_sided = one_sided,
                                  power = power, alpha = alpha, comparisons = comparisons, dropout = dropout,
                                  solve = solve, below = below), sys.call())
}

kp_signed_rank <- function(..., effect_d = NULL, parent = NULL, positive_average = NULL, method = NULL,
                           n = NULL, one_sided = NULL, power = NULL, alpha = NULL, comparisons = NULL,
                           dropout = NULL, solve = NULL, below = NULL) {
  solve_test("signed_rank", list(..., effect_d = effect_d, parent = parent,
                                 positive_average = positive_average, method = method, n = n,
                                 one_sided = one_sided, power = power, alpha = alpha,
                                 comparisons = comparisons, dropout = dropout, solve = solve,
                                 below = below), sys.call())
}

kp_ordinal <- function(..., probabilities1 = NULL, probabilities2 = NULL, odds_ratio = NULL, method = NULL,
                       n = NULL, ratio = NULL, one_sided = NULL, power = NULL, alpha = NULL,
                       comparisons = NULL, dropout = NULL, solve = NULL, below = NULL) {
  solve_test("ordinal", list(..., probabilities1 = probabilities1, probabilities2 = probabilities2,
                             odds_ratio = odds_ratio, method = method, n = n, ratio = ratio,
                             one_sided = one_sided, power = power, alpha = alpha, comparisons = comparisons,
                             dropout = dropout, solve = solve, below = below), sys.call())
}

kp_variance <- function(..., variance_ratio = NULL, sd = NULL, null_sd = NULL, n = NULL, one_sided = NULL,
                        power = NULL, alpha = NULL, comparisons = NULL, dropout = NULL, solve = NULL,
                        below = NULL) {
  solve_test("variance", list(..., variance_ratio = variance_ratio, sd = sd, null_sd = null_sd, n = n,
                              one_sided = one_sided, power = power, alpha = alpha, comparisons = comparisons,
                              dropout = dropout, solve = solve, below = below), sys.call())
}

kp_two_variances <- function(..., variance_ratio = NULL, sd = NULL, n = NULL, ratio = NULL, one_sided = NULL,
                             power = NULL, alpha = NULL, comparisons = NULL, dropout = NULL, solve = NULL,
                             below = NULL) {
  solve_test("two_variances", list(..., variance_ratio = variance_ratio, sd = sd, n = n, ratio = ratio,
                                   one_sided = one_sided, power = power, alpha = alpha,
                                   comparisons = comparisons, dropout = dropout, solve = solve,
                                   below = below), sys.call())
}

kp_proportion <- function(..., proportion = NULL, null = NULL, n = NULL, exact = NULL, one_sided = NULL,
                          correction = NULL, interval_method = NULL, margin = NULL, non_inferiority = NULL,
                          superiority = NULL, equivalence = NULL, margin_scale = NULL, standard_error = NULL,
                          power = NULL, interval = NULL, half_width = NULL, alpha = NULL, comparisons = NULL,
                          dropout = NULL, population = NULL, assurance = NULL, solve = NULL, below = NULL,
                          stable = NULL) {
  solve_test("proportion", list(..., proportion = proportion, null = null, n = n, exact = exact,
                                one_sided = one_sided, correction = correction,
                                interval_method = interval_method, margin = margin,
                                non_inferiority = non_inferiority, superiority = superiority,
                                equivalence = equivalence, margin_scale = margin_scale,
                                standard_error = standard_error, power = power, interval = interval,
                                half_width = half_width, alpha = alpha, comparisons = comparisons,
                                dropout = dropout, population = population, assurance = assurance,
                                solve = solve, below = below, stable = stable), sys.call())
}

kp_two_proportions <- function(..., proportions = NULL, proportion1 = NULL, proportion2 = NULL,
                               risk_difference = NULL, risk_ratio = NULL, odds_ratio = NULL, n = NULL,
                               ratio = NULL, method = NULL, exact = NULL, unpooled = NULL, correction = NULL,
                               one_sided = NULL, interval_method = NULL, margin = NULL,
                               non_inferiority = NULL, superiority = NULL, equivalence = NULL,
                               margin_scale = NULL, margin_method = NULL, power = NULL, interval = NULL,
                               half_width = NULL, alpha = NULL, comparisons = NULL, dropout = NULL,
                               cluster_size = NULL, icc = NULL, cluster_cv = NULL, solve = NULL,
                               below = NULL, stable = NULL) {
  solve_test("two_proportions", list(..., proportions = proportions, proportion1 = proportion1,
                                     proportion2 = proportion2, risk_difference = risk_difference,
                                     risk_ratio = risk_ratio, odds_ratio = odds_ratio, n = n, ratio = ratio,
                                     method = method, exact = exact, unpooled = unpooled,
                                     correction = correction, one_sided = one_sided,
                                     interval_method = interval_method, margin = margin,
                                     non_inferiority = non_inferiority, superiority = superiority,
                                     equivalence = equivalence, margin_scale = margin_scale,
                                     margin_method = margin_method, power = power, interval = interval,
                                     half_width = half_width, alpha = alpha, comparisons = comparisons,
                                     dropout = dropout, cluster_size = cluster_size, icc = icc,
                                     cluster_cv = cluster_cv, solve = solve, below = below,
                                     stable = stable), sys.call())
}

kp_paired_proportions <- function(..., p12 = NULL, p21 = NULL, proportion1 = NULL, proportion2 = NULL,
                                  correlation = NULL, n = NULL, exact = NULL, one_sided = NULL,
                                  correction = NULL, interval_method = NULL, power = NULL, interval = NULL,
                                  half_width = NULL, alpha = NULL, comparisons = NULL, dropout = NULL,
                                  solve = NULL, below = NULL, stable = NULL) {
  solve_test("paired_proportions", list(..., p12 = p12, p21 = p21, proportion1 = proportion1,
                                        proportion2 = proportion2, correlation = correlation, n = n,
                                        exact = exact, one_sided = one_sided, correction = correction,
                                        interval_method = interval_method, power = power,
                                        interval = interval, half_width = half_width, alpha = alpha,
                                        comparisons = comparisons, dropout = dropout, solve = solve,
                                        below = below, stable = stable), sys.call())
}

kp_goodness_of_fit <- function(..., proportions = NULL, null_proportions = NULL, estimated = NULL,
                               likelihood_ratio = NULL, effect_w = NULL, df = NULL, n = NULL, power = NULL,
                               alpha = NULL, comparisons = NULL, dropout = NULL, solve = NULL) {
  solve_test("goodness_of_fit", list(..., proportions = proportions, null_proportions = null_proportions,
                                     estimated = estimated, likelihood_ratio = likelihood_ratio,
                                     effect_w = effect_w, df = df, n = n, power = power, alpha = alpha,
                                     comparisons = comparisons, dropout = dropout,
                                     solve = solve), sys.call())
}

kp_contingency <- function(..., table = NULL, profiles = NULL, rows = NULL, columns = NULL, ratios = NULL,
                           likelihood_ratio = NULL, effect_w = NULL, cramers_v = NULL, df = NULL, n = NULL,
                           power = NULL, alpha = NULL, comparisons = NULL, dropout = NULL, solve = NULL) {
  solve_test("contingency", list(..., table = table, profiles = profiles, rows = rows, columns = columns,
                                 ratios = ratios, likelihood_ratio = likelihood_ratio, effect_w = effect_w,
                                 cramers_v = cramers_v, df = df, n = n, power = power, alpha = alpha,
                                 comparisons = comparisons, dropout = dropout, solve = solve), sys.call())
}

kp_pearson <- function(..., r = NULL, null = NULL, n = NULL, one_sided = NULL, exact = NULL,
                       adjust_bias = NULL, power = NULL, interval = NULL, half_width = NULL, alpha = NULL,
                       comparisons = NULL, dropout = NULL, assurance = NULL, effect_sd = NULL, solve = NULL,
                       below = NULL) {
  solve_test("pearson", list(..., r = r, null = null, n = n, one_sided = one_sided, exact = exact,
                             adjust_bias = adjust_bias, power = power, interval = interval,
                             half_width = half_width, alpha = alpha, comparisons = comparisons,
                             dropout = dropout, assurance = assurance, effect_sd = effect_sd, solve = solve,
                             below = below), sys.call())
}

kp_spearman <- function(..., r = NULL, null = NULL, n = NULL, one_sided = NULL, variance = NULL,
                        power = NULL, interval = NULL, half_width = NULL, alpha = NULL, comparisons = NULL,
                        dropout = NULL, solve = NULL, below = NULL) {
  solve_test("spearman", list(..., r = r, null = null, n = n, one_sided = one_sided, variance = variance,
                              power = power, interval = interval, half_width = half_width, alpha = alpha,
                              comparisons = comparisons, dropout = dropout, solve = solve,
                              below = below), sys.call())
}

kp_partial <- function(..., r = NULL, null = NULL, partialled_out = NULL, n = NULL, one_sided = NULL,
                       power = NULL, interval = NULL, half_width = NULL, alpha = NULL, comparisons = NULL,
                       dropout = NULL, assurance = NULL, solve = NULL, below = NULL) {
  solve_test("partial", list(..., r = r, null = null, partialled_out = partialled_out, n = n,
                             one_sided = one_sided, power = power, interval = interval,
                             half_width = half_width, alpha = alpha, comparisons = comparisons,
                             dropout = dropout, assurance = assurance, solve = solve,
                             below = below), sys.call())
}

kp_two_correlations <- function(..., correlations = NULL, effect_q = NULL, n = NULL, ratio = NULL,
                                one_sided = NULL, power = NULL, alpha = NULL, comparisons = NULL,
                                dropout = NULL, solve = NULL) {
  solve_test("two_correlations", list(..., correlations = correlations, effect_q = effect_q, n = n,
                                      ratio = ratio, one_sided = one_sided, power = power, alpha = alpha,
                                      comparisons = comparisons, dropout = dropout,
                                      solve = solve), sys.call())
}

kp_dependent_correlations <- function(..., r12 = NULL, r13 = NULL, r34 = NULL, r14 = NULL, r23 = NULL,
                                      r24 = NULL, n = NULL, one_sided = NULL, null_correlations = NULL,
                                      power = NULL, alpha = NULL, comparisons = NULL, dropout = NULL,
                                      solve = NULL, below = NULL) {
  solve_test("dependent_correlations", list(..., r12 = r12, r13 = r13, r34 = r34, r14 = r14, r23 = r23,
                                            r24 = r24, n = n, one_sided = one_sided,
                                            null_correlations = null_correlations, power = power,
                                            alpha = alpha, comparisons = comparisons, dropout = dropout,
                                            solve = solve, below = below), sys.call())
}

kp_regression <- function(..., r_squared = NULL, r_squared_reduced = NULL, effect_f2 = NULL,
                          predictors = NULL, tested = NULL, n = NULL, random = NULL, no_intercept = NULL,
                          power = NULL, alpha = NULL, comparisons = NULL, dropout = NULL, solve = NULL) {
  solve_test("regression", list(..., r_squared = r_squared, r_squared_reduced = r_squared_reduced,
                                effect_f2 = effect_f2, predictors = predictors, tested = tested, n = n,
                                random = random, no_intercept = no_intercept, power = power, alpha = alpha,
                                comparisons = comparisons, dropout = dropout, solve = solve), sys.call())
}

kp_effect <- function(..., means = NULL, mean_difference = NULL, sd = NULL, sd_difference = NULL,
                      correlation = NULL, mean = NULL, test_value = NULL, t = NULL, f_statistic = NULL,
                      df = NULL, one_sample = NULL, effect_d = NULL, hedges_g = NULL, superiority = NULL,
                      effect_f = NULL, effect_f2 = NULL, eta_squared = NULL, r_squared = NULL,
                      predictors = NULL, r = NULL, correlations = NULL, effect_q = NULL, proportions = NULL,
                      events = NULL, counts = NULL, proportion1 = NULL, odds_ratio = NULL, risk_ratio = NULL,
                      risk_difference = NULL, effect_h = NULL, n = NULL, confidence = NULL) {
  convert_effect(list(..., means = means, mean_difference = mean_difference, sd = sd,
                      sd_difference = sd_difference, correlation = correlation, mean = mean,
                      test_value = test_value, t = t, f_statistic = f_statistic, df = df,
                      one_sample = one_sample, effect_d = effect_d, hedges_g = hedges_g,
                      superiority = superiority, effect_f = effect_f, effect_f2 = effect_f2,
                      eta_squared = eta_squared, r_squared = r_squared, predictors = predictors, r = r,
                      correlations = correlations, effect_q = effect_q, proportions = proportions,
                      events = events, counts = counts, proportion1 = proportion1, odds_ratio = odds_ratio,
                      risk_ratio = risk_ratio, risk_difference = risk_difference, effect_h = effect_h, n = n,
                      confidence = confidence), sys.call())
}
