#ifndef KELCOMMON_KEL_DIST_FUN_H
#define KELCOMMON_KEL_DIST_FUN_H

#include "kelcommon/api.h"

namespace KelMath {

/// Probability distributions. Each function is pure, may be called from any thread, throws nothing and returns
/// quickly for every bit pattern of its arguments.
///
/// Common to all:
/// - a NaN argument gives NaN (binomials: and error code 1), never the missing value;
/// - outside its domain a function gives the system-missing value, `KelCommon::KelMV::Missing()`;
/// - probabilities are clamped to [0, 1];
/// - methods, sources, measured accuracy and speed stand in docs/accuracy.md;
/// - the trailing tuning arguments of `IdfT`, `NonCentralCdfT` and `NonCentralCdfF` are accepted and not needed: the
///   accuracy is the same for all of their values.
class KELCOMMON_API KelDistFun {
public:
  /// Quantile of the F distribution.
  /// @param p lower probability, 0 to 1
  /// @param df1 numerator degrees of freedom, above 0
  /// @param df2 denominator degrees of freedom, above 0
  /// @return the F value; 0 at p = 0, plus infinity at p = 1
  static double IdfF(double p, double df1, double df2) noexcept;

  /// Lower probability of the noncentral F distribution.
  /// @param x F value; at or below 0 the probability is 0
  /// @param df1 numerator degrees of freedom, above 0
  /// @param df2 denominator degrees of freedom, above 0
  /// @param noncentrality 0 or above; plus infinity puts all mass at plus infinity
  /// @param eps tuning argument, not needed
  static double NonCentralCdfF(double x, double df1, double df2, double noncentrality, double eps) noexcept;

  /// Quantile of Student's t distribution.
  /// @param p lower probability, 0 to 1
  /// @param df degrees of freedom, above 0
  /// @param a,b tuning arguments, not needed
  /// @return the t value; minus infinity at p = 0, plus infinity at p = 1, 0 at p = 1/2
  static double IdfT(double p, double df, double a, double b) noexcept;

  /// Lower probability of the noncentral t distribution.
  /// @param x t value; the missing value acts as minus infinity
  /// @param df degrees of freedom, above 0
  /// @param noncentrality any; an infinite one puts all mass at that infinity
  /// @param tuning not needed
  static double NonCentralCdfT(double x, double df, double noncentrality, double tuning) noexcept;

  /// Lower probability of the standard normal distribution at z.
  static double CdfStdNorm(double z) noexcept;

  /// Quantile of the standard normal distribution.
  /// @param p lower probability, 0 to 1
  /// @return the z value; minus infinity at p = 0, plus infinity at p = 1
  static double IdfStdNorm(double p) noexcept;

  /// Lower probability of the beta distribution.
  /// @param x at or below 0 the probability is 0, at or above 1 it is 1
  /// @param a,b shapes, 0 or above and not both 0; with a = 0 all mass is at 0, with b = 0 at 1, and an infinite shape
  ///   acts as the other one being 0
  static double CdfBeta(double x, double a, double b) noexcept;

  /// Quantile of the beta distribution.
  /// @param p lower probability, 0 to 1
  /// @param a,b shapes, as of `CdfBeta`
  /// @return the x value, 0 to 1
  static double IdfBeta(const double& p, const double& a, const double& b) noexcept;

  /// Lower probability of the binomial distribution.
  /// @param x count, of which the whole part is used; below 0 the probability is 0, from n on it is 1
  /// @param n trials, 0 or above and finite; may be fractional, the probability is then that of the incomplete beta
  ///   function I_{1-p}(n - k, k + 1)
  /// @param p success probability, 0 to 1
  /// @param err receives 0, or 1 for invalid arguments and NaN
  static double CdfBin(double x, double n, double p, long& err) noexcept;

  /// Quantile of the binomial distribution: the largest whole k with `CdfBin(k, n, p)` <= prob.
  /// @param prob lower probability, 0 to 1
  /// @param n trials, as of `CdfBin`
  /// @param p success probability, 0 to 1
  /// @param err receives 0, or 1 for invalid arguments and NaN
  /// @return the count; -1 when there is none, n at prob = 1
  static double IdfBin(double prob, double n, double p, long& err) noexcept;

  /// Mass of the binomial distribution, Gamma(n + 1) / (Gamma(x + 1) Gamma(n - x + 1)) p^x (1 - p)^(n - x).
  /// @param x count, which may be fractional; outside 0 to n the mass is 0
  /// @param n trials, 0 or above and finite; may be fractional
  /// @param p success probability, 0 to 1
  /// @param err receives 0, or 1 for invalid arguments and NaN
  static double PdfBin(double x, double n, double p, long& err) noexcept;

  /// Mass of the negative binomial distribution, Gamma(r + x) / (x! Gamma(r)) p^r (1 - p)^x.
  /// @param x failures before the r-th success, which may be fractional; below 0 the mass is 0
  /// @param r successes, above 0; may be fractional
  /// @param p success probability, above 0 and up to 1
  /// @param err receives 0, or 1 for invalid arguments and NaN
  static double PdfNegBin(double x, double r, double p, long& err) noexcept;

  /// Natural logarithm of the absolute value of the gamma function; plus infinity at its poles, the whole numbers up to
  /// 0, and at both infinities.
  static double orvadnlgam(const double& x) noexcept;
};

}  // namespace KelMath

#endif
