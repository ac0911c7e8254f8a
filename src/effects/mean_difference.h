#ifndef KELPOWER_EFFECTS_MEAN_DIFFERENCE_H
#define KELPOWER_EFFECTS_MEAN_DIFFERENCE_H

#include <optional>

#include "effects/interval.h"

// Standardised differences of means. Their intervals are those of the noncentrality of t, divided by what t is over d.

namespace kelpower::effects {

/// What is reported of a group.
struct Group {
  double mean;
  double sd;    ///< standard deviation, above 0
  double size;  ///< above 1
};

/// The standard deviation within two groups, sqrt(((n1 - 1) sd1^2 + (n2 - 1) sd2^2) / (n1 + n2 - 2)).
double PooledSd(const Group& first, const Group& second);

/// Cohen's d = (mean1 - mean2) / pooled standard deviation, with its interval at level 1 - alpha. None for sizes of 1
/// or less, standard deviations that are not above 0, and a level outside (0, 1).
std::optional<Estimate> CohensD(const Group& first, const Group& second, double alpha);

/// Cohen's d = t sqrt(1 / n1 + 1 / n2) of two independent groups. None for sizes that leave no degree of freedom.
std::optional<Estimate> CohensDOfT(double t, double n1, double n2, double alpha);

/// Cohen's d = t / sqrt(n) of one sample, or of the differences of n pairs.
std::optional<Estimate> CohensDOfOneSampleT(double t, double size, double alpha);

/// What d on `df` > 1 degrees of freedom is multiplied by so that it has no bias,
/// Gamma(df / 2) / (sqrt(df / 2) Gamma((df - 1) / 2)), about 1 - 3 / (4 df - 1) (Hedges 1981, Journal of Educational
/// Statistics 6, 107-128). Relative error below 2e-14. NaN for other degrees of freedom.
double HedgesFactor(double df);

/// Hedges' g: d and its limits times the factor. None where there is no factor.
std::optional<Estimate> HedgesG(const Estimate& d, double df);

/// The probability, 0 to 1, that someone of the first group has more than someone of the second, Phi(d / sqrt(2)), for
/// normal groups with one standard deviation (McGraw and Wong 1992, Psychological Bulletin 111, 361-365).
double ProbabilityOfSuperiority(double d);

/// The d with that probability of superiority in (0, 1). Infinite at 0 and 1, NaN outside.
double CohensDOfSuperiority(double probability);

/// The share, 0 to 1, of the second group that lies below the mean of the first, Phi(d), for normal groups with one
/// standard deviation (Cohen 1988, section 2.2).
double CohensU3(double d);

// A measurement cut in two, as d and as odds ratio: exp(d pi / sqrt(3)) for logistic distributions, wherever the cut is
// (Chinn 2000, Statistics in Medicine 19, 3127-3131). For others it is an approximation.

double OddsRatioOfCohensD(double d);

/// Infinite at 0, NaN below.
double CohensDOfOddsRatio(double oddsRatio);

}  // namespace kelpower::effects

#endif
