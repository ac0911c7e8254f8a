import numpy as np

__all__ = [
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
    "mean_effect_d",
    "mean_half_width",
    "mean_mean",
    "mean_n",
    "mean_n_for_half_width",
    "mean_n_of_mean",
    "mean_power",
    "mean_power_of_mean",
    "mean_sd",
    "paired_means_correlation",
    "paired_means_effect_d",
    "paired_means_half_width",
    "paired_means_half_width_of_sds",
    "paired_means_mean_difference",
    "paired_means_n",
    "paired_means_n_for_half_width",
    "paired_means_n_for_half_width_of_sds",
    "paired_means_n_of_mean_difference",
    "paired_means_n_of_means",
    "paired_means_power",
    "paired_means_power_of_mean_difference",
    "paired_means_power_of_means",
    "paired_means_sd_difference",
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
    "pearson_n_for_half_width",
    "pearson_power",
    "pearson_r",
    "proportion_half_width",
    "proportion_n",
    "proportion_n_exact",
    "proportion_n_for_half_width",
    "proportion_null",
    "proportion_power",
    "proportion_power_exact",
    "proportion_proportion",
    "regression_effect_f2",
    "regression_n",
    "regression_n_of_effect_f2",
    "regression_power",
    "regression_power_of_effect_f2",
    "regression_r_squared",
    "spearman_half_width",
    "spearman_n",
    "spearman_n_for_half_width",
    "spearman_power",
    "spearman_r",
    "two_means_effect_d",
    "two_means_half_width",
    "two_means_mean_difference",
    "two_means_n",
    "two_means_n_for_half_width",
    "two_means_n_of_mean_difference",
    "two_means_n_of_means",
    "two_means_power",
    "two_means_power_of_mean_difference",
    "two_means_power_of_means",
    "two_means_total",
    "two_means_total_of_mean_difference",
    "two_means_total_of_means",
    "two_proportions_half_width",
    "two_proportions_half_width_of_odds_ratio",
    "two_proportions_half_width_of_risk_difference",
    "two_proportions_half_width_of_risk_ratio",
    "two_proportions_n",
    "two_proportions_n_for_half_width",
    "two_proportions_n_for_half_width_of_odds_ratio",
    "two_proportions_n_for_half_width_of_risk_difference",
    "two_proportions_n_for_half_width_of_risk_ratio",
    "two_proportions_n_of_odds_ratio",
    "two_proportions_n_of_risk_difference",
    "two_proportions_n_of_risk_ratio",
    "two_proportions_odds_ratio",
    "two_proportions_power",
    "two_proportions_power_of_odds_ratio",
    "two_proportions_power_of_risk_difference",
    "two_proportions_power_of_risk_ratio",
    "two_proportions_risk_difference",
    "two_proportions_risk_ratio",
    "two_proportions_total",
    "two_proportions_total_of_odds_ratio",
    "two_proportions_total_of_risk_difference",
    "two_proportions_total_of_risk_ratio",
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
mean_power_of_mean: np.ufunc
mean_power: np.ufunc
mean_n_of_mean: np.ufunc
mean_n: np.ufunc
mean_half_width: np.ufunc
mean_n_for_half_width: np.ufunc
mean_effect_d: np.ufunc
mean_mean: np.ufunc
mean_sd: np.ufunc
paired_means_power_of_means: np.ufunc
paired_means_power_of_mean_difference: np.ufunc
paired_means_power: np.ufunc
paired_means_n_of_means: np.ufunc
paired_means_n_of_mean_difference: np.ufunc
paired_means_n: np.ufunc
paired_means_half_width_of_sds: np.ufunc
paired_means_half_width: np.ufunc
paired_means_n_for_half_width_of_sds: np.ufunc
paired_means_n_for_half_width: np.ufunc
paired_means_effect_d: np.ufunc
paired_means_mean_difference: np.ufunc
paired_means_sd_difference: np.ufunc
paired_means_correlation: np.ufunc
two_means_power_of_means: np.ufunc
two_means_power_of_mean_difference: np.ufunc
two_means_power: np.ufunc
two_means_n_of_means: np.ufunc
two_means_total_of_means: np.ufunc
two_means_n_of_mean_difference: np.ufunc
two_means_total_of_mean_difference: np.ufunc
two_means_n: np.ufunc
two_means_total: np.ufunc
two_means_half_width: np.ufunc
two_means_n_for_half_width: np.ufunc
two_means_effect_d: np.ufunc
two_means_mean_difference: np.ufunc
proportion_power: np.ufunc
proportion_power_exact: np.ufunc
proportion_n: np.ufunc
proportion_n_exact: np.ufunc
proportion_half_width: np.ufunc
proportion_n_for_half_width: np.ufunc
proportion_proportion: np.ufunc
proportion_null: np.ufunc
two_proportions_power: np.ufunc
two_proportions_power_of_risk_difference: np.ufunc
two_proportions_power_of_risk_ratio: np.ufunc
two_proportions_power_of_odds_ratio: np.ufunc
two_proportions_n: np.ufunc
two_proportions_total: np.ufunc
two_proportions_n_of_risk_difference: np.ufunc
two_proportions_total_of_risk_difference: np.ufunc
two_proportions_n_of_risk_ratio: np.ufunc
two_proportions_total_of_risk_ratio: np.ufunc
two_proportions_n_of_odds_ratio: np.ufunc
two_proportions_total_of_odds_ratio: np.ufunc
two_proportions_half_width: np.ufunc
two_proportions_half_width_of_risk_difference: np.ufunc
two_proportions_half_width_of_risk_ratio: np.ufunc
two_proportions_half_width_of_odds_ratio: np.ufunc
two_proportions_n_for_half_width: np.ufunc
two_proportions_n_for_half_width_of_risk_difference: np.ufunc
two_proportions_n_for_half_width_of_risk_ratio: np.ufunc
two_proportions_n_for_half_width_of_odds_ratio: np.ufunc
two_proportions_risk_difference: np.ufunc
two_proportions_risk_ratio: np.ufunc
two_proportions_odds_ratio: np.ufunc
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
pearson_power: np.ufunc
pearson_n: np.ufunc
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
regression_power: np.ufunc
regression_power_of_effect_f2: np.ufunc
regression_n: np.ufunc
regression_n_of_effect_f2: np.ufunc
regression_r_squared: np.ufunc
regression_effect_f2: np.ufunc
