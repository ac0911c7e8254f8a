"""Times statsmodels on the designs of kelpower_calls.cpp."""

import math
import platform

import scipy
import statsmodels
from statsmodels.stats import power as power_of
from statsmodels.stats import proportion

from timing import print_calls

one_sample_t = power_of.TTestPower()
two_sample_t = power_of.TTestIndPower()
anova = power_of.FTestAnovaPower()
normal = power_of.NormalIndPower()
f_test = power_of.FTestPower()

# Three groups of the means 10, 12 and 15 with a standard deviation of 6.
THREE_MEANS_F = math.sqrt(((10 - 37 / 3) ** 2 + (12 - 37 / 3) ** 2 + (15 - 37 / 3) ** 2) / 3) / 6
TWO_PROPORTIONS_H = 2 * math.asin(math.sqrt(0.5)) - 2 * math.asin(math.sqrt(0.3))
ONE_PROPORTION = {"std_null": 0.5, "std_alternative": math.sqrt(0.7 * 0.3)}
F2 = 1 / 9

# Sizes are those of the first group, not rounded.
DESIGNS = {
    "one-sample-t": {
        "power": lambda: one_sample_t.power(0.4, 40, 0.05),
        "size": lambda: one_sample_t.solve_power(0.4, alpha=0.05, power=0.8),
    },
    "one-sample-t-one-sided": {
        "power": lambda: one_sample_t.power(0.4, 40, 0.05, alternative="larger"),
        "size": lambda: one_sample_t.solve_power(0.4, alpha=0.05, power=0.8, alternative="larger"),
    },
    "paired-t": {
        "power": lambda: one_sample_t.power(0.5, 30, 0.05),
        "size": lambda: one_sample_t.solve_power(0.5, alpha=0.05, power=0.9),
    },
    "two-sample-t": {
        "power": lambda: two_sample_t.power(0.5, 64, 0.05),
        "size": lambda: two_sample_t.solve_power(0.5, alpha=0.05, power=0.8),
    },
    "two-sample-t-one-sided": {
        "power": lambda: two_sample_t.power(0.5, 64, 0.05, alternative="larger"),
        "size": lambda: two_sample_t.solve_power(0.5, alpha=0.05, power=0.8, alternative="larger"),
    },
    "two-sample-t-small-effect": {
        "power": lambda: two_sample_t.power(0.1, 1600, 0.05),
        "size": lambda: two_sample_t.solve_power(0.1, alpha=0.05, power=0.8),
    },
    "two-sample-t-unequal": {
        "power": lambda: two_sample_t.power(0.5, 40, 0.05, ratio=2),
        "size": lambda: two_sample_t.solve_power(0.5, alpha=0.05, power=0.8, ratio=2),
    },
    "anova": {
        "power": lambda: anova.power(THREE_MEANS_F, 60, 0.05, k_groups=3),
        "size": lambda: anova.solve_power(THREE_MEANS_F, alpha=0.05, power=0.8, k_groups=3) / 3,
    },
    "anova-small-effect": {
        "power": lambda: anova.power(0.1, 1200, 0.05, k_groups=5),
        "size": lambda: anova.solve_power(0.1, alpha=0.05, power=0.8, k_groups=5) / 5,
    },
    "one-proportion": {
        "power": lambda: power_of.normal_power_het(0.2, 50, 0.05, **ONE_PROPORTION),
        "size": lambda: power_of.normal_sample_size_one_tail(0.2, 0.8, 0.025, **ONE_PROPORTION),
    },
    "two-proportions-z": {
        "power": lambda: proportion.power_proportions_2indep(0.2, 0.3, 100, return_results=False),
        "size": lambda: proportion.samplesize_proportions_2indep_onetail(0.2, 0.3, 0.8),
    },
    "two-proportions-arcsine": {
        "power": lambda: normal.power(TWO_PROPORTIONS_H, 100, 0.05),
        "size": lambda: normal.solve_power(TWO_PROPORTIONS_H, alpha=0.05, power=0.8),
    },
    "two-proportions-unequal": {
        "power": lambda: normal.power(TWO_PROPORTIONS_H, 80, 0.05, ratio=2),
        "size": lambda: normal.solve_power(TWO_PROPORTIONS_H, alpha=0.05, power=0.8, ratio=2),
    },
    # Five predictors; the number of cases is that of the error degrees of freedom and 6. What FTestPower calls df_denom
    # are the degrees of freedom of the numerator.
    "regression": {
        "power": lambda: f_test.power(math.sqrt(F2), df_num=89, df_denom=5, alpha=0.05),
        "size": lambda: f_test.solve_power(math.sqrt(F2), df_denom=5, alpha=0.05, power=0.8) + 6,
    },
}

if __name__ == "__main__":
    print_calls("statsmodels", DESIGNS)
    print("version", "Python", platform.python_version(), sep="\t")
    print("version", "statsmodels", statsmodels.__version__, sep="\t")
    print("version", "SciPy", scipy.__version__, sep="\t")
