#ifndef KELCOMMON_DISTRIBUTIONS_H
#define KELCOMMON_DISTRIBUTIONS_H

#include "kelcommon/api.h"

/// Probability distributions beside those of kel_dist_fun.h. Each function is pure, may be called from any thread,
/// throws nothing and returns quickly for every bit pattern of its arguments.
///
/// Common to all:
/// - `Cdf` is the lower probability, P(X <= x), `Sf` the upper one, P(X > x); each is computed by itself, so that it
///   keeps its digits however small it is;
/// - `Idf` is the quantile of a lower probability, `Isf` that of an upper one;
/// - a NaN argument gives NaN, never the missing value;
/// - outside its domain a function gives the system-missing value, `KelCommon::KelMV::Missing()`;
/// - probabilities lie in [0, 1];
/// - methods, sources, measured accuracy and speed stand in docs/accuracy.md.
namespace kelcommon {

// Gamma distribution of scale 1.

/// Lower probability of the gamma distribution, the regularized incomplete gamma function P(shape, x).
/// @param x at or below 0 the probability is 0
/// @param shape above 0; plus infinity puts all mass at plus infinity
KELCOMMON_API double CdfGamma(double x, double shape) noexcept;

/// Upper probability of the gamma distribution, Q(shape, x). Arguments as of `CdfGamma`.
KELCOMMON_API double SfGamma(double x, double shape) noexcept;

/// Quantile of the gamma distribution.
/// @param p lower probability, 0 to 1
/// @param shape above 0
/// @return the x value; 0 at p = 0, plus infinity at p = 1
KELCOMMON_API double IdfGamma(double p, double shape) noexcept;

/// Quantile of the gamma distribution from above.
/// @param q upper probability, 0 to 1
/// @param shape above 0
/// @return the x value; plus infinity at q = 0, 0 at q = 1
KELCOMMON_API double IsfGamma(double q, double shape) noexcept;

// Chi-square distribution.

/// Lower probability of the chi-square distribution.
/// @param x at or below 0 the probability is 0
/// @param df degrees of freedom, above 0; plus infinity puts all mass at plus infinity
KELCOMMON_API double CdfChiSquare(double x, double df) noexcept;

/// Upper probability of the chi-square distribution. Arguments as of `CdfChiSquare`.
KELCOMMON_API double SfChiSquare(double x, double df) noexcept;

/// Quantile of the chi-square distribution.
/// @param p lower probability, 0 to 1
/// @param df degrees of freedom, above 0
/// @return the x value; 0 at p = 0, plus infinity at p = 1
KELCOMMON_API double IdfChiSquare(double p, double df) noexcept;

/// Quantile of the chi-square distribution from above.
/// @param q upper probability, 0 to 1
/// @param df degrees of freedom, above 0
/// @return the x value; plus infinity at q = 0, 0 at q = 1
KELCOMMON_API double IsfChiSquare(double q, double df) noexcept;

// Noncentral chi-square distribution.

/// Lower probability of the noncentral chi-square distribution, the sum of `df` squared normal variables of variance 1
/// whose squared means add up to the noncentrality.
/// @param x at or below 0 the probability is 0
/// @param df degrees of freedom, above 0; plus infinity puts all mass at plus infinity
/// @param noncentrality 0 or above; plus infinity puts all mass at plus infinity
KELCOMMON_API double NonCentralCdfChiSquare(double x, double df, double noncentrality) noexcept;

/// Upper probability of the noncentral chi-square distribution. Arguments as of `NonCentralCdfChiSquare`.
KELCOMMON_API double NonCentralSfChiSquare(double x, double df, double noncentrality) noexcept;

/// The noncentrality at which the upper probability of the noncentral chi-square distribution is q. The power of a
/// chi-square test grows with its noncentrality: with its critical value for x this is the one of the power q.
/// @param q upper probability, 0 to 1
/// @param x above 0 and finite
/// @param df degrees of freedom, above 0 and finite
/// @return the noncentrality; missing where q lies below the upper probability without one, `SfChiSquare(x, df)`; plus
///   infinity at q = 1
KELCOMMON_API double NonCentralityChiSquare(double q, double x, double df) noexcept;

// Poisson distribution.

/// Mass of the Poisson distribution, e^-mean mean^x / Gamma(x + 1).
/// @param x count, which may be fractional; below 0 the mass is 0
/// @param mean 0 or above; with 0 all mass is at 0, plus infinity puts it at plus infinity
KELCOMMON_API double PdfPoisson(double x, double mean) noexcept;

/// Lower probability of the Poisson distribution.
/// @param x count, of which the whole part is used; below 0 the probability is 0
/// @param mean as of `PdfPoisson`
KELCOMMON_API double CdfPoisson(double x, double mean) noexcept;

/// Upper probability of the Poisson distribution, of counts above x. Arguments as of `CdfPoisson`.
KELCOMMON_API double SfPoisson(double x, double mean) noexcept;

/// Quantile of the Poisson distribution: the largest whole k with `CdfPoisson(k, mean)` <= p, as that of the binomial
/// distribution in kel_dist_fun.h.
/// @param p lower probability, 0 to 1
/// @param mean as of `PdfPoisson`
/// @return the count; -1 when there is none, plus infinity at p = 1 or an infinite mean
KELCOMMON_API double IdfPoisson(double p, double mean) noexcept;

// Studentized range.

/// Lower probability of the studentized range: of the range of k means in units of their estimated standard error.
/// @param q at or below 0 the probability is 0
/// @param k number of means, 2 to a million; may be fractional
/// @param df degrees of freedom of the estimate, above 0; plus infinity for a known standard error
KELCOMMON_API double CdfStudentizedRange(double q, double k, double df) noexcept;

/// Upper probability of the studentized range. Arguments as of `CdfStudentizedRange`.
KELCOMMON_API double SfStudentizedRange(double q, double k, double df) noexcept;

/// Quantile of the studentized range.
/// @param p lower probability, 0 to 1
/// @param k,df as of `CdfStudentizedRange`
/// @return the range; 0 at p = 0, plus infinity at p = 1 and where no double is large enough
KELCOMMON_API double IdfStudentizedRange(double p, double k, double df) noexcept;

/// Quantile of the studentized range from above.
/// @param q upper probability, 0 to 1
/// @param k,df as of `CdfStudentizedRange`
/// @return the range; plus infinity at q = 0, 0 at q = 1
KELCOMMON_API double IsfStudentizedRange(double q, double k, double df) noexcept;

// Bivariate normal distribution.

/// P(X <= a and Y <= b) of two standard normal variables.
/// @param a,b any numbers; with minus infinity the probability is 0, with plus infinity that of the other one alone
/// @param rho their correlation, -1 to 1
KELCOMMON_API double CdfBivariateNormal(double a, double b, double rho) noexcept;

// Distribution of the correlation of a sample of n pairs from a bivariate normal distribution.

/// Lower probability of a sample correlation.
/// @param r correlation of the sample; below -1 the probability is 0, from 1 on it is 1
/// @param n number of pairs, above 2; may be fractional; with plus infinity all mass is at rho
/// @param rho correlation of the population, -1 to 1; with -1 or 1 all mass is at rho
KELCOMMON_API double CdfCorrelation(double r, double n, double rho) noexcept;

/// Upper probability of a sample correlation. Arguments as of `CdfCorrelation`.
KELCOMMON_API double SfCorrelation(double r, double n, double rho) noexcept;

/// Quantile of a sample correlation.
/// @param p lower probability, 0 to 1
/// @param n,rho as of `CdfCorrelation`
/// @return the correlation; -1 at p = 0, 1 at p = 1
KELCOMMON_API double IdfCorrelation(double p, double n, double rho) noexcept;

}  // namespace kelcommon

#endif
