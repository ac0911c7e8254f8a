"""What kelpower.dist offers: the names, arguments and texts of the distributions."""

from dataclasses import dataclass

NORMAL = "Abramowitz and Stegun (1964), Handbook of Mathematical Functions, 7.1.13 and 26.2.29."
NORMAL_QUANTILE = (
    "After Wichura, M. (1988), Algorithm AS 241: the percentage points of the normal distribution, Applied Statistics 37."
)
BETA = (
    "Loader, C. (2000), Fast and accurate computation of binomial probabilities. DiDonato, A. and Morris, A. (1992), "
    "Significant digit computation of the incomplete beta function ratios, ACM TOMS 18, equations 4 and 9."
)
NONCENTRAL_T = (
    "Guenther, W. (1978), Evaluation of probabilities for the noncentral distributions and the difference of two t "
    "variables with a desk calculator. Benton, D. and Krishnamoorthy, K. (2003), Computing discrete mixtures of "
    "continuous distributions, equation 3.2."
)
NONCENTRAL_F = (
    "Johnson, N., Kotz, S. and Balakrishnan, N. (1995), Continuous Univariate Distributions 2, equation 30.10. Lugannani, "
    "R. and Rice, S. (1980), Saddle point approximation for the distribution of the sum of independent random variables."
)
T_QUANTILE = (
    "Wallace, D. (1959), Bounds on normal approximations to Student's and the chi-square distributions, Annals of "
    "Mathematical Statistics 30. Below 23 degrees of freedom as `f_ppf`."
)
F_QUANTILE = (
    "DiDonato, A. and Morris, A. (1992), Significant digit computation of the incomplete beta function ratios, ACM TOMS "
    "18, equations 4 and 9. Abramowitz and Stegun, 26.5.22 and 26.5.4."
)
BINOMIAL_QUANTILE = (
    "Cornish, E. and Fisher, R. (1938), Revue de l'Institut International de Statistique 5, 307-320, for the start."
)
GAMMA = "Abramowitz and Stegun (1964), Handbook of Mathematical Functions, 6.1.17 and 6.1.40."

Z = [("z", "Value of the standard normal variable.")]
P = [("p", "Probability, from 0 to 1.")]
X = [("x", "Value of the variable.")]
DF = [("df", "Degrees of freedom, above 0; whole numbers are not required.")]
NC = [("nc", "Noncentrality, any number.")]
DFS = [
    ("dfn", "Degrees of freedom of the numerator, above 0; whole numbers are not required."),
    ("dfd", "Degrees of freedom of the denominator, above 0."),
]
NC_OF_F = [("nc", "Noncentrality, 0 or above.")]
SHAPES = [
    ("a", "First shape, 0 or above. With 0 all mass is at 0."),
    ("b", "Second shape, 0 or above, and not 0 where ``a`` is. With 0 all mass is at 1."),
]
COUNT = [("k", "Count, of which the whole part is used.")]
TRIALS = [
    ("n", "Number of trials, 0 or above and finite; whole numbers are not required."),
    ("p", "Probability of a success, from 0 to 1."),
]
LOWER = "Probability that the variable is at most"
UPPER = "Probability that the variable is above"
BOTH_TAILS = "Far in the upper tail it keeps the digits that 1 minus the lower probability loses."


@dataclass(frozen=True)
class Distribution:
    name: str
    arguments: list[tuple[str, str]]
    summary: str
    returns: str
    source: str
    notes: str = ""

    @property
    def names(self) -> list[str]:
        return [name for name, _ in self.arguments]


DISTRIBUTIONS = [
    Distribution("norm_cdf", Z, "Lower probability of the standard normal distribution.", f"{LOWER} ``z``.", NORMAL),
    Distribution("norm_sf", Z, "Upper probability of the standard normal distribution.", f"{UPPER} ``z``.", NORMAL,
                 BOTH_TAILS),
    Distribution("norm_ppf", P, "Quantile of the standard normal distribution.",
                 "The value whose lower probability is ``p``; minus infinity at 0, infinity at 1.", NORMAL_QUANTILE),
    Distribution("norm_isf", P, "Upper quantile of the standard normal distribution.",
                 "The value whose upper probability is ``p``; infinity at 0, minus infinity at 1.", NORMAL_QUANTILE),
    Distribution("t_cdf", X + DF, "Lower probability of Student's t distribution.", f"{LOWER} ``x``.", NONCENTRAL_T),
    Distribution("t_sf", X + DF, "Upper probability of Student's t distribution.", f"{UPPER} ``x``.", NONCENTRAL_T,
                 BOTH_TAILS),
    Distribution("t_ppf", P + DF, "Quantile of Student's t distribution.",
                 "The value whose lower probability is ``p``; minus infinity at 0, infinity at 1.", T_QUANTILE),
    Distribution("t_isf", P + DF, "Upper quantile of Student's t distribution.",
                 "The value whose upper probability is ``p``; infinity at 0, minus infinity at 1.", T_QUANTILE),
    Distribution("nct_cdf", X + DF + NC, "Lower probability of the noncentral t distribution.", f"{LOWER} ``x``.",
                 NONCENTRAL_T, "An infinite noncentrality puts all mass at that infinity."),
    Distribution("nct_sf", X + DF + NC, "Upper probability of the noncentral t distribution.", f"{UPPER} ``x``.",
                 NONCENTRAL_T, BOTH_TAILS),
    Distribution("f_cdf", X + DFS, "Lower probability of the F distribution.", f"{LOWER} ``x``.", NONCENTRAL_F),
    Distribution("f_sf", X + DFS, "Upper probability of the F distribution.", f"{UPPER} ``x``.", NONCENTRAL_F,
                 "It is the lower probability of the reciprocal, with the degrees of freedom exchanged. " + BOTH_TAILS),
    Distribution("f_ppf", P + DFS, "Quantile of the F distribution.",
                 "The value whose lower probability is ``p``; 0 at 0, infinity at 1.", F_QUANTILE),
    Distribution("f_isf", P + DFS, "Upper quantile of the F distribution.",
                 "The value whose upper probability is ``p``; infinity at 0, 0 at 1.", F_QUANTILE,
                 "It is the reciprocal of the quantile with the degrees of freedom exchanged."),
    Distribution("ncf_cdf", X + DFS + NC_OF_F, "Lower probability of the noncentral F distribution.", f"{LOWER} ``x``.",
                 NONCENTRAL_F, "An infinite noncentrality puts all mass at infinity."),
    Distribution("beta_cdf", [("x", "Value of the variable; below 0 the probability is 0, above 1 it is 1.")] + SHAPES,
                 "Lower probability of the beta distribution.", f"{LOWER} ``x``.", BETA,
                 "It is the regularised incomplete beta function. An infinite shape acts as the other one being 0."),
    Distribution("beta_ppf", P + SHAPES, "Quantile of the beta distribution.",
                 "The value, from 0 to 1, whose lower probability is ``p``.", F_QUANTILE),
    Distribution("binom_cdf", COUNT + TRIALS, "Lower probability of the binomial distribution.", f"{LOWER} ``k``.", BETA,
                 "A fractional ``n`` gives the incomplete beta function I(1 - p; n - k, k + 1)."),
    Distribution("binom_sf", COUNT + TRIALS, "Upper probability of the binomial distribution.", f"{UPPER} ``k``.", BETA,
                 BOTH_TAILS),
    Distribution("binom_pmf", [("k", "Count, which may be fractional.")] + TRIALS,
                 "Mass of the binomial distribution.", "Probability of ``k`` successes; 0 outside 0 to ``n``.", BETA,
                 "Between whole numbers the factorials are gamma functions."),
    Distribution("binom_ppf", [("q", "Lower probability, from 0 to 1.")] + TRIALS,
                 "Quantile of the binomial distribution.",
                 "The smallest count whose lower probability is at least ``q``, up to rounding; -1 at 0.",
                 BINOMIAL_QUANTILE),
    Distribution("binom_lower_critical", [("q", "Lower probability, from 0 to 1, such as the level of a test.")] + TRIALS,
                 "Lower critical count of a binomial test.",
                 "The largest count whose lower probability is at most ``q``; -1 where there is none, ``n`` at 1.",
                 BINOMIAL_QUANTILE, "It differs from a quantile, which reaches the probability."),
    Distribution("nbinom_pmf", [("k", "Failures before the last success, 0 or above; may be fractional."),
                                ("r", "Number of successes, above 0; whole numbers are not required."),
                                ("p", "Probability of a success, above 0, up to 1.")],
                 "Mass of the negative binomial distribution.",
                 "Probability of ``k`` failures before success number ``r``; 0 for ``k`` below 0.", BETA),
    Distribution("gammaln", [("x", "Any number.")], "Logarithm of the absolute value of the gamma function.",
                 "The logarithm; infinity at the poles, the whole numbers up to 0, and at both infinities.", GAMMA),
]
