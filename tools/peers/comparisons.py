"""The designs of the tests that the page compares in a section of their own: what each is, how it is asked of other
programs, and within which time it is to be answered. kelpower's own calls are in comparison_calls.cpp, by name."""

from dataclasses import dataclass, field

POWER = 1e-8  # how near probabilities are to be
SIZE = 2.5e-4  # the search of R ends within 0.00012 subjects of the size, on either side


@dataclass
class Comparison:
    name: str  # as in comparison_calls.cpp
    title: str
    peers: dict = field(default_factory=dict)  # packages, and the expression with which each is asked
    seconds: float = None  # the longest time that is stated
    tolerance: float = POWER


NON_INFERIOR_MEANS = ("noninferiority.solve_power(diff=0, margin=-2, treatment_std=6, reference_std=6, "
                      "treatment_size=60, reference_size=60, alternative='greater', equal_var=True)")
EQUIVALENT_PROPORTION = ("equivalence.solve_power(proportion=0.75, null_proportion=0.8, margin_lower=-0.1, "
                         "margin_upper=0.1, size=638, method='z-p0')")

COMPARISONS = [
    Comparison("equivalence-means", "Equivalence of two means, exact, 63 and 63", seconds=20e-6),
    Comparison("bioequivalence", "Bioequivalence in a 2x2 crossover, logarithms, 12 and 12", seconds=20e-6),
    Comparison("non-inferiority-means", "Non-inferiority of two means, 60 and 60",
               {"pwr": "pwr.t.test(n = 60, d = 2 / 6, sig.level = 0.025, alternative = 'greater')$power",
                "statsmodels": "power.TTestIndPower().power(2 / 6, 60, 0.025, alternative='larger')",
                "pystatpower": NON_INFERIOR_MEANS}),
    Comparison("equivalence-proportion-exact", "Equivalence of a proportion, exact, n = 500",
               {"statsmodels": "proportion.power_binom_tost(0.5, 0.7, 500, 0.6, 0.05)"}),
    Comparison("equivalence-proportion", "Equivalence of a proportion, normal, n = 638",
               {"statsmodels": "proportion.power_ztost_prop(0.7, 0.9, 638, 0.75, 0.025, discrete=False)[0]",
                "pystatpower": EQUIVALENT_PROPORTION}),
    Comparison("farrington-manning", "Non-inferiority of two proportions, Farrington and Manning, 200 and 200"),
    Comparison("unconditional", "Non-inferiority of two proportions, exact unconditional, 100 and 100", seconds=20e-3),
    Comparison("tukey-3", "Tukey, any pair of 3 groups, 20 each", seconds=1e-3),
    Comparison("tukey-4", "Tukey, any pair of 4 groups, 10 each", seconds=1e-3),
    Comparison("dunnett", "Dunnett, any of 3 groups against a control, 10 each"),
    Comparison("factorial", "Interaction in a 3 x 3 x 4 factorial, 3 each",
               {"pwr": "pwr.f2.test(u = 4, v = 72, f2 = 108 * 0.25^2 / 77)$power",
                "statsmodels": "power.FTestPower().power((108 * 0.25**2 / 77)**0.5, 72, 4, 0.05)"}),
    Comparison("covariance", "Analysis of covariance, exact, 3 groups, 21 each"),
    Comparison("chi-square", "Chi-square test, 6 degrees of freedom, w = 0.3, n = 150",
               {"pwr": "pwr.chisq.test(w = 0.3, df = 6, N = 150)$power",
                "statsmodels": "power.GofChisquarePower().power(0.3, 150, 0.05, n_bins=7)"}),
    Comparison("chi-square-size", "The same, sample size for power 0.8",
               {"pwr": "pwr.chisq.test(w = 0.3, df = 6, power = 0.8)$N",
                "statsmodels": "power.GofChisquarePower().solve_power(0.3, alpha=0.05, power=0.8, n_bins=7)"},
               tolerance=SIZE),
    Comparison("variance", "One variance, two-sided, ratio 1.5, n = 81"),
    Comparison("two-variances", "Two variances, two-sided, ratio 1.5, 193 and 193"),
    Comparison("mann-whitney", "Mann-Whitney, by moments, normal, d = 0.5, 40 and 60"),
    Comparison("signed-rank", "Signed ranks, by moments, normal, d = 0.5, n = 40"),
    Comparison("correlation-exact", "Correlation, exact, r = 0.3, n = 85"),
    Comparison("two-correlations", "Two correlations, q = 0.4, 100 and 100"),
    Comparison("dependent-correlations", "Two correlations with a variable in common, 0.5 and 0.3, n = 100"),
    Comparison("repeated-measures", "Repeated measures, interaction of 2 groups and 3 measurements, f = 0.25, N = 28"),
    Comparison("ordinal", "Ordered categories, log odds, odds ratio 2, 40 and 60"),
]
