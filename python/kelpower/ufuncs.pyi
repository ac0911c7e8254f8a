import numpy as np

__all__ = [
    "ancova_effect_f",
    "ancova_n",
    "ancova_n_of_means",
    "ancova_power",
    "ancova_power_of_means",
    "ancova_sd",
    "ancova_total",
    "ancova_total_of_means",
    "anova_effect_f",
    "anova_eta_squared",
    "anova_half_width",
    "anova_n",
    "anova_n_for_half_width",
    "anova_n_of_eta_squared",
    "anova_n_of_means",
    "anova_power",
    "anova_power_of_eta_squared",
    "anova_power_of_means",
    "anova_sd",
    "anova_total",
    "anova_total_of_eta_squared",
    "anova_total_of_means",
    "contingency_cramers_v",
    "contingency_effect_w",
    "contingency_n",
    "contingency_n_of_cramers_v",
    "contingency_n_of_rows",
    "contingency_power",
    "contingency_power_of_cramers_v",
    "contingency_power_of_rows",
    "contrast_effect_d",
    "contrast_half_width",
    "contrast_n",
    "contrast_n_for_half_width",
    "contrast_n_of_means",
    "contrast_power",
    "contrast_power_of_means",
    "contrast_sd",
    "contrast_total",
    "contrast_total_of_means",
    "crossover_cv",
    "crossover_cv_equivalence",
    "crossover_cv_non_inferiority",
    "crossover_cv_superiority",
    "crossover_half_width",
    "crossover_margin_non_inferiority",
    "crossover_margin_superiority",
    "crossover_mean_difference",
    "crossover_mean_difference_equivalence",
    "crossover_mean_difference_non_inferiority",
    "crossover_mean_difference_superiority",
    "crossover_mean_ratio",
    "crossover_mean_ratio_equivalence",
    "crossover_mean_ratio_non_inferiority",
    "crossover_mean_ratio_superiority",
    "crossover_n",
    "crossover_n_equivalence",
    "crossover_n_for_half_width",
    "crossover_n_non_inferiority",
    "crossover_n_of_mean_ratio",
    "crossover_n_of_mean_ratio_equivalence",
    "crossover_n_of_mean_ratio_non_inferiority",
    "crossover_n_of_mean_ratio_superiority",
    "crossover_n_superiority",
    "crossover_power",
    "crossover_power_equivalence",
    "crossover_power_non_inferiority",
    "crossover_power_of_mean_ratio",
    "crossover_power_of_mean_ratio_equivalence",
    "crossover_power_of_mean_ratio_non_inferiority",
    "crossover_power_of_mean_ratio_superiority",
    "crossover_power_superiority",
    "crossover_sd",
    "crossover_sd_equivalence",
    "crossover_sd_non_inferiority",
    "crossover_sd_superiority",
    "crossover_total",
    "crossover_total_equivalence",
    "crossover_total_non_inferiority",
    "crossover_total_of_mean_ratio",
    "crossover_total_of_mean_ratio_equivalence",
    "crossover_total_of_mean_ratio_non_inferiority",
    "crossover_total_of_mean_ratio_superiority",
    "crossover_total_superiority",
    "dependent_correlations_n",
    "dependent_correlations_n_of_r34",
    "dependent_correlations_power",
    "dependent_correlations_power_of_r34",
    "dependent_correlations_r13",
    "dependent_correlations_r34",
    "dunnett_effect_d",
    "dunnett_half_width",
    "dunnett_n",
    "dunnett_n_for_half_width",
    "dunnett_n_of_means",
    "dunnett_power",
    "dunnett_power_of_means",
    "dunnett_sd",
    "dunnett_total",
    "dunnett_total_of_means",
    "goodness_of_fit_effect_w",
    "goodness_of_fit_n",
    "goodness_of_fit_power",
    "mann_whitney_effect_d",
    "mann_whitney_n",
    "mann_whitney_n_of_superiority",
    "mann_whitney_power",
    "mann_whitney_power_of_superiority",
    "mann_whitney_superiority",
    "mann_whitney_total",
    "mann_whitney_total_of_superiority",
    "mean_effect_d",
    "mean_half_width",
    "mean_margin_non_inferiority",
    "mean_margin_superiority",
    "mean_mean",
    "mean_mean_equivalence",
    "mean_mean_non_inferiority",
    "mean_mean_superiority",
    "mean_n",
    "mean_n_for_half_width",
    "mean_n_of_mean",
    "mean_n_of_mean_equivalence",
    "mean_n_of_mean_non_inferiority",
    "mean_n_of_mean_superiority",
    "mean_power",
    "mean_power_of_mean",
    "mean_power_of_mean_equivalence",
    "mean_power_of_mean_non_inferiority",
    "mean_power_of_mean_superiority",
    "mean_sd",
    "mean_sd_equivalence",
    "mean_sd_non_inferiority",
    "mean_sd_superiority",
    "paired_means_correlation",
    "paired_means_correlation_equivalence",
    "paired_means_correlation_non_inferiority",
    "paired_means_correlation_superiority",
    "paired_means_effect_d",
    "paired_means_half_width",
    "paired_means_half_width_of_sds",
    "paired_means_margin_non_inferiority",
    "paired_means_margin_superiority",
    "paired_means_mean_difference",
    "paired_means_mean_difference_equivalence",
    "paired_means_mean_difference_non_inferiority",
    "paired_means_mean_difference_superiority",
    "paired_means_n",
    "paired_means_n_for_half_width",
    "paired_means_n_for_half_width_of_sds",
    "paired_means_n_of_mean_difference",
    "paired_means_n_of_mean_difference_equivalence",
    "paired_means_n_of_mean_difference_non_inferiority",
    "paired_means_n_of_mean_difference_superiority",
    "paired_means_n_of_means",
    "paired_means_n_of_means_equivalence",
    "paired_means_n_of_means_non_inferiority",
    "paired_means_n_of_means_superiority",
    "paired_means_power",
    "paired_means_power_of_mean_difference",
    "paired_means_power_of_mean_difference_equivalence",
    "paired_means_power_of_mean_difference_non_inferiority",
    "paired_means_power_of_mean_difference_superiority",
    "paired_means_power_of_means",
    "paired_means_power_of_means_equivalence",
    "paired_means_power_of_means_non_inferiority",
    "paired_means_power_of_means_superiority",
    "paired_means_sd_difference",
    "paired_means_sd_difference_equivalence",
    "paired_means_sd_difference_non_inferiority",
    "paired_means_sd_difference_superiority",
    "paired_proportions_correlation",
    "paired_proportions_half_width",
    "paired_proportions_n",
    "paired_proportions_n_exact",
    "paired_proportions_n_for_half_width",
    "paired_proportions_n_of_proportion1",
    "paired_proportions_n_of_proportion1_exact",
    "paired_proportions_p12",
    "paired_proportions_p21",
    "paired_proportions_power",
    "paired_proportions_power_exact",
    "paired_proportions_power_of_proportion1",
    "paired_proportions_power_of_proportion1_exact",
    "paired_proportions_proportion1",
    "paired_proportions_proportion2",
    "pairwise_effect_d",
    "pairwise_half_width",
    "pairwise_n",
    "pairwise_n_for_half_width",
    "pairwise_n_of_means",
    "pairwise_power",
    "pairwise_power_of_means",
    "pairwise_sd",
    "pairwise_total",
    "pairwise_total_of_means",
    "partial_half_width",
    "partial_n",
    "partial_n_for_half_width",
    "partial_power",
    "partial_r",
    "pearson_half_width",
    "pearson_n",
    "pearson_n_exact",
    "pearson_n_for_half_width",
    "pearson_power",
    "pearson_power_exact",
    "pearson_r",
    "proportion_half_width",
    "proportion_margin_non_inferiority",
    "proportion_margin_superiority",
    "proportion_n",
    "proportion_n_equivalence",
    "proportion_n_exact",
    "proportion_n_exact_equivalence",
    "proportion_n_exact_non_inferiority",
    "proportion_n_exact_superiority",
    "proportion_n_for_half_width",
    "proportion_n_non_inferiority",
    "proportion_n_superiority",
    "proportion_null",
    "proportion_null_equivalence",
    "proportion_null_non_inferiority",
    "proportion_null_superiority",
    "proportion_power",
    "proportion_power_equivalence",
    "proportion_power_exact",
    "proportion_power_exact_equivalence",
    "proportion_power_exact_non_inferiority",
    "proportion_power_exact_superiority",
    "proportion_power_non_inferiority",
    "proportion_power_superiority",
    "proportion_proportion",
    "proportion_proportion_equivalence",
    "proportion_proportion_non_inferiority",
    "proportion_proportion_superiority",
    "regression_effect_f2",
    "regression_n",
    "regression_n_of_effect_f2",
    "regression_power",
    "regression_power_of_effect_f2",
    "regression_r_squared",
    "signed_rank_effect_d",
    "signed_rank_n",
    "signed_rank_n_of_positive_average",
    "signed_rank_positive_average",
    "signed_rank_power",
    "signed_rank_power_of_positive_average",
    "spearman_half_width",
    "spearman_n",
    "spearman_n_for_half_width",
    "spearman_power",
    "spearman_r",
    "tukey_effect_d",
    "tukey_half_width",
    "tukey_n",
    "tukey_n_for_half_width",
    "tukey_n_of_means",
    "tukey_power",
    "tukey_power_of_means",
    "tukey_sd",
    "tukey_total",
    "tukey_total_of_means",
    "two_correlations_effect_q",
    "two_correlations_n",
    "two_correlations_n_of_correlations",
    "two_correlations_power",
    "two_correlations_power_of_correlations",
    "two_correlations_total",
    "two_correlations_total_of_correlations",
    "two_means_cv",
    "two_means_cv_equivalence",
    "two_means_cv_non_inferiority",
    "two_means_cv_superiority",
    "two_means_effect_d",
    "two_means_half_width",
    "two_means_margin_non_inferiority",
    "two_means_margin_superiority",
    "two_means_mean_difference",
    "two_means_mean_difference_equivalence",
    "two_means_mean_difference_non_inferiority",
    "two_means_mean_difference_superiority",
    "two_means_mean_ratio",
    "two_means_mean_ratio_equivalence",
    "two_means_mean_ratio_non_inferiority",
    "two_means_mean_ratio_superiority",
    "two_means_n",
    "two_means_n_for_half_width",
    "two_means_n_of_mean_difference",
    "two_means_n_of_mean_difference_equivalence",
    "two_means_n_of_mean_difference_non_inferiority",
    "two_means_n_of_mean_difference_superiority",
    "two_means_n_of_mean_ratio",
    "two_means_n_of_mean_ratio_equivalence",
    "two_means_n_of_mean_ratio_non_inferiority",
    "two_means_n_of_mean_ratio_superiority",
    "two_means_n_of_means",
    "two_means_n_of_means_equivalence",
    "two_means_n_of_means_non_inferiority",
    "two_means_n_of_means_superiority",
    "two_means_power",
    "two_means_power_of_mean_difference",
    "two_means_power_of_mean_difference_equivalence",
    "two_means_power_of_mean_difference_non_inferiority",
    "two_means_power_of_mean_difference_superiority",
    "two_means_power_of_mean_ratio",
    "two_means_power_of_mean_ratio_equivalence",
    "two_means_power_of_mean_ratio_non_inferiority",
    "two_means_power_of_mean_ratio_superiority",
    "two_means_power_of_means",
    "two_means_power_of_means_equivalence",
    "two_means_power_of_means_non_inferiority",
    "two_means_power_of_means_superiority",
    "two_means_total",
    "two_means_total_of_mean_difference",
    "two_means_total_of_mean_difference_equivalence",
    "two_means_total_of_mean_difference_non_inferiority",
    "two_means_total_of_mean_difference_superiority",
    "two_means_total_of_mean_ratio",
    "two_means_total_of_mean_ratio_equivalence",
    "two_means_total_of_mean_ratio_non_inferiority",
    "two_means_total_of_mean_ratio_superiority",
    "two_means_total_of_means",
    "two_means_total_of_means_equivalence",
    "two_means_total_of_means_non_inferiority",
    "two_means_total_of_means_superiority",
    "two_proportions_half_width",
    "two_proportions_half_width_of_odds_ratio",
    "two_proportions_half_width_of_risk_difference",
    "two_proportions_half_width_of_risk_ratio",
    "two_proportions_margin_non_inferiority",
    "two_proportions_margin_superiority",
    "two_proportions_n",
    "two_proportions_n_equivalence",
    "two_proportions_n_exact_equivalence",
    "two_proportions_n_exact_non_inferiority",
    "two_proportions_n_exact_superiority",
    "two_proportions_n_for_half_width",
    "two_proportions_n_for_half_width_of_odds_ratio",
    "two_proportions_n_for_half_width_of_risk_difference",
    "two_proportions_n_for_half_width_of_risk_ratio",
    "two_proportions_n_non_inferiority",
    "two_proportions_n_of_odds_ratio",
    "two_proportions_n_of_odds_ratio_equivalence",
    "two_proportions_n_of_odds_ratio_exact_equivalence",
    "two_proportions_n_of_odds_ratio_exact_non_inferiority",
    "two_proportions_n_of_odds_ratio_exact_superiority",
    "two_proportions_n_of_odds_ratio_non_inferiority",
    "two_proportions_n_of_odds_ratio_superiority",
    "two_proportions_n_of_risk_difference",
    "two_proportions_n_of_risk_difference_equivalence",
    "two_proportions_n_of_risk_difference_exact_equivalence",
    "two_proportions_n_of_risk_difference_exact_non_inferiority",
    "two_proportions_n_of_risk_difference_exact_superiority",
    "two_proportions_n_of_risk_difference_non_inferiority",
    "two_proportions_n_of_risk_difference_superiority",
    "two_proportions_n_of_risk_ratio",
    "two_proportions_n_of_risk_ratio_equivalence",
    "two_proportions_n_of_risk_ratio_exact_equivalence",
    "two_proportions_n_of_risk_ratio_exact_non_inferiority",
    "two_proportions_n_of_risk_ratio_exact_superiority",
    "two_proportions_n_of_risk_ratio_non_inferiority",
    "two_proportions_n_of_risk_ratio_superiority",
    "two_proportions_n_superiority",
    "two_proportions_odds_ratio",
    "two_proportions_odds_ratio_equivalence",
    "two_proportions_odds_ratio_non_inferiority",
    "two_proportions_odds_ratio_superiority",
    "two_proportions_power",
    "two_proportions_power_equivalence",
    "two_proportions_power_exact_equivalence",
    "two_proportions_power_exact_non_inferiority",
    "two_proportions_power_exact_superiority",
    "two_proportions_power_non_inferiority",
    "two_proportions_power_of_odds_ratio",
    "two_proportions_power_of_odds_ratio_equivalence",
    "two_proportions_power_of_odds_ratio_exact_equivalence",
    "two_proportions_power_of_odds_ratio_exact_non_inferiority",
    "two_proportions_power_of_odds_ratio_exact_superiority",
    "two_proportions_power_of_odds_ratio_non_inferiority",
    "two_proportions_power_of_odds_ratio_superiority",
    "two_proportions_power_of_risk_difference",
    "two_proportions_power_of_risk_difference_equivalence",
    "two_proportions_power_of_risk_difference_exact_equivalence",
    "two_proportions_power_of_risk_difference_exact_non_inferiority",
    "two_proportions_power_of_risk_difference_exact_superiority",
    "two_proportions_power_of_risk_difference_non_inferiority",
    "two_proportions_power_of_risk_difference_superiority",
    "two_proportions_power_of_risk_ratio",
    "two_proportions_power_of_risk_ratio_equivalence",
    "two_proportions_power_of_risk_ratio_exact_equivalence",
    "two_proportions_power_of_risk_ratio_exact_non_inferiority",
    "two_proportions_power_of_risk_ratio_exact_superiority",
    "two_proportions_power_of_risk_ratio_non_inferiority",
    "two_proportions_power_of_risk_ratio_superiority",
    "two_proportions_power_superiority",
    "two_proportions_risk_difference",
    "two_proportions_risk_difference_equivalence",
    "two_proportions_risk_difference_non_inferiority",
    "two_proportions_risk_difference_superiority",
    "two_proportions_risk_ratio",
    "two_proportions_risk_ratio_equivalence",
    "two_proportions_risk_ratio_non_inferiority",
    "two_proportions_risk_ratio_superiority",
    "two_proportions_total",
    "two_proportions_total_equivalence",
    "two_proportions_total_exact_equivalence",
    "two_proportions_total_exact_non_inferiority",
    "two_proportions_total_exact_superiority",
    "two_proportions_total_non_inferiority",
    "two_proportions_total_of_odds_ratio",
    "two_proportions_total_of_odds_ratio_equivalence",
    "two_proportions_total_of_odds_ratio_exact_equivalence",
    "two_proportions_total_of_odds_ratio_exact_non_inferiority",
    "two_proportions_total_of_odds_ratio_exact_superiority",
    "two_proportions_total_of_odds_ratio_non_inferiority",
    "two_proportions_total_of_odds_ratio_superiority",
    "two_proportions_total_of_risk_difference",
    "two_proportions_total_of_risk_difference_equivalence",
    "two_proportions_total_of_risk_difference_exact_equivalence",
    "two_proportions_total_of_risk_difference_exact_non_inferiority",
    "two_proportions_total_of_risk_difference_exact_superiority",
    "two_proportions_total_of_risk_difference_non_inferiority",
    "two_proportions_total_of_risk_difference_superiority",
    "two_proportions_total_of_risk_ratio",
    "two_proportions_total_of_risk_ratio_equivalence",
    "two_proportions_total_of_risk_ratio_exact_equivalence",
    "two_proportions_total_of_risk_ratio_exact_non_inferiority",
    "two_proportions_total_of_risk_ratio_exact_superiority",
    "two_proportions_total_of_risk_ratio_non_inferiority",
    "two_proportions_total_of_risk_ratio_superiority",
    "two_proportions_total_superiority",
    "two_variances_n",
    "two_variances_n_of_sd",
    "two_variances_power",
    "two_variances_power_of_sd",
    "two_variances_total",
    "two_variances_total_of_sd",
    "two_variances_variance_ratio",
    "variance_n",
    "variance_n_of_sd",
    "variance_power",
    "variance_power_of_sd",
    "variance_sd",
    "variance_variance_ratio",
]

anova_power_of_means: np.ufunc
anova_power: np.ufunc
anova_power_of_eta_squared: np.ufunc
anova_n_of_means: np.ufunc
anova_total_of_means: np.ufunc
anova_n: np.ufunc
anova_total: np.ufunc
anova_n_of_eta_squared: np.ufunc
anova_total_of_eta_squared: np.ufunc
anova_half_width: np.ufunc
anova_n_for_half_width: np.ufunc
anova_effect_f: np.ufunc
anova_eta_squared: np.ufunc
anova_sd: np.ufunc
contrast_power_of_means: np.ufunc
contrast_power: np.ufunc
contrast_n_of_means: np.ufunc
contrast_total_of_means: np.ufunc
contrast_n: np.ufunc
contrast_total: np.ufunc
contrast_half_width: np.ufunc
contrast_n_for_half_width: np.ufunc
contrast_effect_d: np.ufunc
contrast_sd: np.ufunc
pairwise_power_of_means: np.ufunc
pairwise_power: np.ufunc
pairwise_n: np.ufunc
pairwise_total: np.ufunc
pairwise_n_of_means: np.ufunc
pairwise_total_of_means: np.ufunc
pairwise_half_width: np.ufunc
pairwise_n_for_half_width: np.ufunc
pairwise_effect_d: np.ufunc
pairwise_sd: np.ufunc
tukey_power_of_means: np.ufunc
tukey_power: np.ufunc
tukey_n_of_means: np.ufunc
tukey_total_of_means: np.ufunc
tukey_n: np.ufunc
tukey_total: np.ufunc
tukey_half_width: np.ufunc
tukey_n_for_half_width: np.ufunc
tukey_effect_d: np.ufunc
tukey_sd: np.ufunc
dunnett_power_of_means: np.ufunc
dunnett_power: np.ufunc
dunnett_n_of_means: np.ufunc
dunnett_total_of_means: np.ufunc
dunnett_n: np.ufunc
dunnett_total: np.ufunc
dunnett_half_width: np.ufunc
dunnett_n_for_half_width: np.ufunc
dunnett_effect_d: np.ufunc
dunnett_sd: np.ufunc
ancova_power_of_means: np.ufunc
ancova_power: np.ufunc
ancova_n_of_means: np.ufunc
ancova_total_of_means: np.ufunc
ancova_n: np.ufunc
ancova_total: np.ufunc
ancova_effect_f: np.ufunc
ancova_sd: np.ufunc
mean_power_of_mean: np.ufunc
mean_power: np.ufunc
mean_power_of_mean_non_inferiority: np.ufunc
mean_power_of_mean_superiority: np.ufunc
mean_power_of_mean_equivalence: np.ufunc
mean_n_of_mean: np.ufunc
mean_n: np.ufunc
mean_n_of_mean_non_inferiority: np.ufunc
mean_n_of_mean_superiority: np.ufunc
mean_n_of_mean_equivalence: np.ufunc
mean_half_width: np.ufunc
mean_n_for_half_width: np.ufunc
mean_effect_d: np.ufunc
mean_mean: np.ufunc
mean_mean_non_inferiority: np.ufunc
mean_mean_superiority: np.ufunc
mean_mean_equivalence: np.ufunc
mean_sd: np.ufunc
mean_sd_non_inferiority: np.ufunc
mean_sd_superiority: np.ufunc
mean_sd_equivalence: np.ufunc
mean_margin_non_inferiority: np.ufunc
mean_margin_superiority: np.ufunc
paired_means_power_of_means: np.ufunc
paired_means_power_of_mean_difference: np.ufunc
paired_means_power: np.ufunc
paired_means_power_of_means_non_inferiority: np.ufunc
paired_means_power_of_means_superiority: np.ufunc
paired_means_power_of_means_equivalence: np.ufunc
paired_means_power_of_mean_difference_non_inferiority: np.ufunc
paired_means_power_of_mean_difference_superiority: np.ufunc
paired_means_power_of_mean_difference_equivalence: np.ufunc
paired_means_n_of_means: np.ufunc
paired_means_n_of_mean_difference: np.ufunc
paired_means_n: np.ufunc
paired_means_n_of_means_non_inferiority: np.ufunc
paired_means_n_of_means_superiority: np.ufunc
paired_means_n_of_means_equivalence: np.ufunc
paired_means_n_of_mean_difference_non_inferiority: np.ufunc
paired_means_n_of_mean_difference_superiority: np.ufunc
paired_means_n_of_mean_difference_equivalence: np.ufunc
paired_means_half_width_of_sds: np.ufunc
paired_means_half_width: np.ufunc
paired_means_n_for_half_width_of_sds: np.ufunc
paired_means_n_for_half_width: np.ufunc
paired_means_effect_d: np.ufunc
paired_means_mean_difference: np.ufunc
paired_means_mean_difference_non_inferiority: np.ufunc
paired_means_mean_difference_superiority: np.ufunc
paired_means_mean_difference_equivalence: np.ufunc
paired_means_sd_difference: np.ufunc
paired_means_sd_difference_non_inferiority: np.ufunc
paired_means_sd_difference_superiority: np.ufunc
paired_means_sd_difference_equivalence: np.ufunc
paired_means_correlation: np.ufunc
paired_means_correlation_non_inferiority: np.ufunc
paired_means_correlation_superiority: np.ufunc
paired_means_correlation_equivalence: np.ufunc
paired_means_margin_non_inferiority: np.ufunc
paired_means_margin_superiority: np.ufunc
two_means_power_of_means: np.ufunc
two_means_power_of_mean_difference: np.ufunc
two_means_power: np.ufunc
two_means_power_of_mean_ratio: np.ufunc
two_means_power_of_means_non_inferiority: np.ufunc
two_means_power_of_means_superiority: np.ufunc
two_means_power_of_means_equivalence: np.ufunc
two_means_power_of_mean_difference_non_inferiority: np.ufunc
two_means_power_of_mean_difference_superiority: np.ufunc
two_means_power_of_mean_difference_equivalence: np.ufunc
two_means_power_of_mean_ratio_non_inferiority: np.ufunc
two_means_power_of_mean_ratio_superiority: np.ufunc
two_means_power_of_mean_ratio_equivalence: np.ufunc
two_means_n_of_means: np.ufunc
two_means_total_of_means: np.ufunc
two_means_n_of_mean_difference: np.ufunc
two_means_total_of_mean_difference: np.ufunc
two_means_n: np.ufunc
two_means_total: np.ufunc
two_means_n_of_mean_ratio: np.ufunc
two_means_total_of_mean_ratio: np.ufunc
two_means_n_of_means_non_inferiority: np.ufunc
two_means_total_of_means_non_inferiority: np.ufunc
two_means_n_of_means_superiority: np.ufunc
two_means_total_of_means_superiority: np.ufunc
two_means_n_of_means_equivalence: np.ufunc
two_means_total_of_means_equivalence: np.ufunc
two_means_n_of_mean_difference_non_inferiority: np.ufunc
two_means_total_of_mean_difference_non_inferiority: np.ufunc
two_means_n_of_mean_difference_superiority: np.ufunc
two_means_total_of_mean_difference_superiority: np.ufunc
two_means_n_of_mean_difference_equivalence: np.ufunc
two_means_total_of_mean_difference_equivalence: np.ufunc
two_means_n_of_mean_ratio_non_inferiority: np.ufunc
two_means_total_of_mean_ratio_non_inferiority: np.ufunc
two_means_n_of_mean_ratio_superiority: np.ufunc
two_means_total_of_mean_ratio_superiority: np.ufunc
two_means_n_of_mean_ratio_equivalence: np.ufunc
two_means_total_of_mean_ratio_equivalence: np.ufunc
two_means_half_width: np.ufunc
two_means_n_for_half_width: np.ufunc
two_means_effect_d: np.ufunc
two_means_mean_difference: np.ufunc
two_means_mean_difference_non_inferiority: np.ufunc
two_means_mean_difference_superiority: np.ufunc
two_means_mean_difference_equivalence: np.ufunc
two_means_mean_ratio: np.ufunc
two_means_mean_ratio_non_inferiority: np.ufunc
two_means_mean_ratio_superiority: np.ufunc
two_means_mean_ratio_equivalence: np.ufunc
two_means_cv: np.ufunc
two_means_cv_non_inferiority: np.ufunc
two_means_cv_superiority: np.ufunc
two_means_cv_equivalence: np.ufunc
two_means_margin_non_inferiority: np.ufunc
two_means_margin_superiority: np.ufunc
crossover_power: np.ufunc
crossover_power_of_mean_ratio: np.ufunc
crossover_power_non_inferiority: np.ufunc
crossover_power_superiority: np.ufunc
crossover_power_equivalence: np.ufunc
crossover_power_of_mean_ratio_non_inferiority: np.ufunc
crossover_power_of_mean_ratio_superiority: np.ufunc
crossover_power_of_mean_ratio_equivalence: np.ufunc
crossover_n: np.ufunc
crossover_total: np.ufunc
crossover_n_of_mean_ratio: np.ufunc
crossover_total_of_mean_ratio: np.ufunc
crossover_n_non_inferiority: np.ufunc
crossover_total_non_inferiority: np.ufunc
crossover_n_superiority: np.ufunc
crossover_total_superiority: np.ufunc
crossover_n_equivalence: np.ufunc
crossover_total_equivalence: np.ufunc
crossover_n_of_mean_ratio_non_inferiority: np.ufunc
crossover_total_of_mean_ratio_non_inferiority: np.ufunc
crossover_n_of_mean_ratio_superiority: np.ufunc
crossover_total_of_mean_ratio_superiority: np.ufunc
crossover_n_of_mean_ratio_equivalence: np.ufunc
crossover_total_of_mean_ratio_equivalence: np.ufunc
crossover_half_width: np.ufunc
crossover_n_for_half_width: np.ufunc
crossover_mean_difference: np.ufunc
crossover_mean_difference_non_inferiority: np.ufunc
crossover_mean_difference_superiority: np.ufunc
crossover_mean_difference_equivalence: np.ufunc
crossover_mean_ratio: np.ufunc
crossover_mean_ratio_non_inferiority: np.ufunc
crossover_mean_ratio_superiority: np.ufunc
crossover_mean_ratio_equivalence: np.ufunc
crossover_sd: np.ufunc
crossover_sd_non_inferiority: np.ufunc
crossover_sd_superiority: np.ufunc
crossover_sd_equivalence: np.ufunc
crossover_cv: np.ufunc
crossover_cv_non_inferiority: np.ufunc
crossover_cv_superiority: np.ufunc
crossover_cv_equivalence: np.ufunc
crossover_margin_non_inferiority: np.ufunc
crossover_margin_superiority: np.ufunc
mann_whitney_power: np.ufunc
mann_whitney_power_of_superiority: np.ufunc
mann_whitney_n: np.ufunc
mann_whitney_total: np.ufunc
mann_whitney_n_of_superiority: np.ufunc
mann_whitney_total_of_superiority: np.ufunc
mann_whitney_effect_d: np.ufunc
mann_whitney_superiority: np.ufunc
signed_rank_power: np.ufunc
signed_rank_power_of_positive_average: np.ufunc
signed_rank_n: np.ufunc
signed_rank_n_of_positive_average: np.ufunc
signed_rank_effect_d: np.ufunc
signed_rank_positive_average: np.ufunc
variance_power: np.ufunc
variance_power_of_sd: np.ufunc
variance_n: np.ufunc
variance_n_of_sd: np.ufunc
variance_variance_ratio: np.ufunc
variance_sd: np.ufunc
two_variances_power: np.ufunc
two_variances_power_of_sd: np.ufunc
two_variances_n: np.ufunc
two_variances_total: np.ufunc
two_variances_n_of_sd: np.ufunc
two_variances_total_of_sd: np.ufunc
two_variances_variance_ratio: np.ufunc
proportion_power: np.ufunc
proportion_power_exact: np.ufunc
proportion_power_non_inferiority: np.ufunc
proportion_power_superiority: np.ufunc
proportion_power_equivalence: np.ufunc
proportion_power_exact_non_inferiority: np.ufunc
proportion_power_exact_superiority: np.ufunc
proportion_power_exact_equivalence: np.ufunc
proportion_n: np.ufunc
proportion_n_exact: np.ufunc
proportion_n_non_inferiority: np.ufunc
proportion_n_superiority: np.ufunc
proportion_n_equivalence: np.ufunc
proportion_n_exact_non_inferiority: np.ufunc
proportion_n_exact_superiority: np.ufunc
proportion_n_exact_equivalence: np.ufunc
proportion_half_width: np.ufunc
proportion_n_for_half_width: np.ufunc
proportion_proportion: np.ufunc
proportion_proportion_non_inferiority: np.ufunc
proportion_proportion_superiority: np.ufunc
proportion_proportion_equivalence: np.ufunc
proportion_null: np.ufunc
proportion_null_non_inferiority: np.ufunc
proportion_null_superiority: np.ufunc
proportion_null_equivalence: np.ufunc
proportion_margin_non_inferiority: np.ufunc
proportion_margin_superiority: np.ufunc
two_proportions_power: np.ufunc
two_proportions_power_of_risk_difference: np.ufunc
two_proportions_power_of_risk_ratio: np.ufunc
two_proportions_power_of_odds_ratio: np.ufunc
two_proportions_power_non_inferiority: np.ufunc
two_proportions_power_superiority: np.ufunc
two_proportions_power_equivalence: np.ufunc
two_proportions_power_exact_non_inferiority: np.ufunc
two_proportions_power_exact_superiority: np.ufunc
two_proportions_power_exact_equivalence: np.ufunc
two_proportions_power_of_risk_difference_non_inferiority: np.ufunc
two_proportions_power_of_risk_difference_superiority: np.ufunc
two_proportions_power_of_risk_difference_equivalence: np.ufunc
two_proportions_power_of_risk_difference_exact_non_inferiority: np.ufunc
two_proportions_power_of_risk_difference_exact_superiority: np.ufunc
two_proportions_power_of_risk_difference_exact_equivalence: np.ufunc
two_proportions_power_of_risk_ratio_non_inferiority: np.ufunc
two_proportions_power_of_risk_ratio_superiority: np.ufunc
two_proportions_power_of_risk_ratio_equivalence: np.ufunc
two_proportions_power_of_risk_ratio_exact_non_inferiority: np.ufunc
two_proportions_power_of_risk_ratio_exact_superiority: np.ufunc
two_proportions_power_of_risk_ratio_exact_equivalence: np.ufunc
two_proportions_power_of_odds_ratio_non_inferiority: np.ufunc
two_proportions_power_of_odds_ratio_superiority: np.ufunc
two_proportions_power_of_odds_ratio_equivalence: np.ufunc
two_proportions_power_of_odds_ratio_exact_non_inferiority: np.ufunc
two_proportions_power_of_odds_ratio_exact_superiority: np.ufunc
two_proportions_power_of_odds_ratio_exact_equivalence: np.ufunc
two_proportions_n: np.ufunc
two_proportions_total: np.ufunc
two_proportions_n_of_risk_difference: np.ufunc
two_proportions_total_of_risk_difference: np.ufunc
two_proportions_n_of_risk_ratio: np.ufunc
two_proportions_total_of_risk_ratio: np.ufunc
two_proportions_n_of_odds_ratio: np.ufunc
two_proportions_total_of_odds_ratio: np.ufunc
two_proportions_n_non_inferiority: np.ufunc
two_proportions_total_non_inferiority: np.ufunc
two_proportions_n_superiority: np.ufunc
two_proportions_total_superiority: np.ufunc
two_proportions_n_equivalence: np.ufunc
two_proportions_total_equivalence: np.ufunc
two_proportions_n_exact_non_inferiority: np.ufunc
two_proportions_total_exact_non_inferiority: np.ufunc
two_proportions_n_exact_superiority: np.ufunc
two_proportions_total_exact_superiority: np.ufunc
two_proportions_n_exact_equivalence: np.ufunc
two_proportions_total_exact_equivalence: np.ufunc
two_proportions_n_of_risk_difference_non_inferiority: np.ufunc
two_proportions_total_of_risk_difference_non_inferiority: np.ufunc
two_proportions_n_of_risk_difference_superiority: np.ufunc
two_proportions_total_of_risk_difference_superiority: np.ufunc
two_proportions_n_of_risk_difference_equivalence: np.ufunc
two_proportions_total_of_risk_difference_equivalence: np.ufunc
two_proportions_n_of_risk_difference_exact_non_inferiority: np.ufunc
two_proportions_total_of_risk_difference_exact_non_inferiority: np.ufunc
two_proportions_n_of_risk_difference_exact_superiority: np.ufunc
two_proportions_total_of_risk_difference_exact_superiority: np.ufunc
two_proportions_n_of_risk_difference_exact_equivalence: np.ufunc
two_proportions_total_of_risk_difference_exact_equivalence: np.ufunc
two_proportions_n_of_risk_ratio_non_inferiority: np.ufunc
two_proportions_total_of_risk_ratio_non_inferiority: np.ufunc
two_proportions_n_of_risk_ratio_superiority: np.ufunc
two_proportions_total_of_risk_ratio_superiority: np.ufunc
two_proportions_n_of_risk_ratio_equivalence: np.ufunc
two_proportions_total_of_risk_ratio_equivalence: np.ufunc
two_proportions_n_of_risk_ratio_exact_non_inferiority: np.ufunc
two_proportions_total_of_risk_ratio_exact_non_inferiority: np.ufunc
two_proportions_n_of_risk_ratio_exact_superiority: np.ufunc
two_proportions_total_of_risk_ratio_exact_superiority: np.ufunc
two_proportions_n_of_risk_ratio_exact_equivalence: np.ufunc
two_proportions_total_of_risk_ratio_exact_equivalence: np.ufunc
two_proportions_n_of_odds_ratio_non_inferiority: np.ufunc
two_proportions_total_of_odds_ratio_non_inferiority: np.ufunc
two_proportions_n_of_odds_ratio_superiority: np.ufunc
two_proportions_total_of_odds_ratio_superiority: np.ufunc
two_proportions_n_of_odds_ratio_equivalence: np.ufunc
two_proportions_total_of_odds_ratio_equivalence: np.ufunc
two_proportions_n_of_odds_ratio_exact_non_inferiority: np.ufunc
two_proportions_total_of_odds_ratio_exact_non_inferiority: np.ufunc
two_proportions_n_of_odds_ratio_exact_superiority: np.ufunc
two_proportions_total_of_odds_ratio_exact_superiority: np.ufunc
two_proportions_n_of_odds_ratio_exact_equivalence: np.ufunc
two_proportions_total_of_odds_ratio_exact_equivalence: np.ufunc
two_proportions_half_width: np.ufunc
two_proportions_half_width_of_risk_difference: np.ufunc
two_proportions_half_width_of_risk_ratio: np.ufunc
two_proportions_half_width_of_odds_ratio: np.ufunc
two_proportions_n_for_half_width: np.ufunc
two_proportions_n_for_half_width_of_risk_difference: np.ufunc
two_proportions_n_for_half_width_of_risk_ratio: np.ufunc
two_proportions_n_for_half_width_of_odds_ratio: np.ufunc
two_proportions_risk_difference: np.ufunc
two_proportions_risk_difference_non_inferiority: np.ufunc
two_proportions_risk_difference_superiority: np.ufunc
two_proportions_risk_difference_equivalence: np.ufunc
two_proportions_risk_ratio: np.ufunc
two_proportions_risk_ratio_non_inferiority: np.ufunc
two_proportions_risk_ratio_superiority: np.ufunc
two_proportions_risk_ratio_equivalence: np.ufunc
two_proportions_odds_ratio: np.ufunc
two_proportions_odds_ratio_non_inferiority: np.ufunc
two_proportions_odds_ratio_superiority: np.ufunc
two_proportions_odds_ratio_equivalence: np.ufunc
two_proportions_margin_non_inferiority: np.ufunc
two_proportions_margin_superiority: np.ufunc
paired_proportions_power: np.ufunc
paired_proportions_power_exact: np.ufunc
paired_proportions_power_of_proportion1: np.ufunc
paired_proportions_power_of_proportion1_exact: np.ufunc
paired_proportions_n: np.ufunc
paired_proportions_n_exact: np.ufunc
paired_proportions_n_of_proportion1: np.ufunc
paired_proportions_n_of_proportion1_exact: np.ufunc
paired_proportions_half_width: np.ufunc
paired_proportions_n_for_half_width: np.ufunc
paired_proportions_p12: np.ufunc
paired_proportions_p21: np.ufunc
paired_proportions_proportion1: np.ufunc
paired_proportions_proportion2: np.ufunc
paired_proportions_correlation: np.ufunc
goodness_of_fit_power: np.ufunc
goodness_of_fit_n: np.ufunc
goodness_of_fit_effect_w: np.ufunc
contingency_power_of_rows: np.ufunc
contingency_power: np.ufunc
contingency_power_of_cramers_v: np.ufunc
contingency_n_of_rows: np.ufunc
contingency_n: np.ufunc
contingency_n_of_cramers_v: np.ufunc
contingency_effect_w: np.ufunc
contingency_cramers_v: np.ufunc
pearson_power: np.ufunc
pearson_power_exact: np.ufunc
pearson_n: np.ufunc
pearson_n_exact: np.ufunc
pearson_half_width: np.ufunc
pearson_n_for_half_width: np.ufunc
pearson_r: np.ufunc
spearman_power: np.ufunc
spearman_n: np.ufunc
spearman_half_width: np.ufunc
spearman_n_for_half_width: np.ufunc
spearman_r: np.ufunc
partial_power: np.ufunc
partial_n: np.ufunc
partial_half_width: np.ufunc
partial_n_for_half_width: np.ufunc
partial_r: np.ufunc
two_correlations_power_of_correlations: np.ufunc
two_correlations_power: np.ufunc
two_correlations_n_of_correlations: np.ufunc
two_correlations_total_of_correlations: np.ufunc
two_correlations_n: np.ufunc
two_correlations_total: np.ufunc
two_correlations_effect_q: np.ufunc
dependent_correlations_power: np.ufunc
dependent_correlations_power_of_r34: np.ufunc
dependent_correlations_n: np.ufunc
dependent_correlations_n_of_r34: np.ufunc
dependent_correlations_r34: np.ufunc
dependent_correlations_r13: np.ufunc
regression_power: np.ufunc
regression_power_of_effect_f2: np.ufunc
regression_n: np.ufunc
regression_n_of_effect_f2: np.ufunc
regression_r_squared: np.ufunc
regression_effect_f2: np.ufunc
