#ifndef KELPOWER_ANOVA_CONTRAST_POWER_H
#define KELPOWER_ANOVA_CONTRAST_POWER_H

#include <optional>

#include "frame/rejection.h"

namespace kelpower {

/// sum c_i m_i
double ContrastValue(int numGroups, const double* groupMeans, const double* contrastCoefficients);

/// A contrast in units of the standard deviation; missing unless that is above 0.
double StandardisedContrast(double value, double pooledSD);

/// sum c_i^2 / n_i: the variance of the estimated contrast in units of the within-group variance.
double ContrastVariance(int numGroups, const double* contrastCoefficients, const double* groupSizes);

/// The noncentrality (N / W) d^2 / Q of a contrast with standardised effect d at total size N, where Q is its variance
/// at the group sizes that sum to W. A missing effect counts as infinite.
double ContrastNoncentrality(double effectSize, double relativeSize, double variance);

/// The test of a contrast at one total size and level: one-sided a t test, two-sided an F test on 1 degree of freedom.
class ContrastTest {
public:
  ContrastTest(int numGroups, double sampleSize, bool isDirectional, double alpha);

  /// False when there are too few groups, fewer subjects than groups, or no such level; the power is then missing.
  bool IsValid() const { return fTest_ || tTest_; }

  /// The power at a noncentrality of the F distribution, whose square root is that of the t distribution.
  double Power(double noncentrality) const;

private:
  std::optional<FTest> fTest_;
  std::optional<TTest> tTest_;
};

/// The total size that gives a contrast the power, with its variance taken at the allocation ratios.
/// Missing when there is none.
double SolveContrastTotal(int numGroups, double effectSize, const double* groupRatios,
                          const double* contrastCoefficients, double power, bool isDirectional, double alpha);

/// A contrast of given means whose standardised effect is asked for again and again, at different standard deviations.
/// The first effect repairs the caller's coefficients as `EffectSizeSC` does, and is missing when they cannot be; later
/// ones are those of the repaired coefficients.
class ChartedContrast {
public:
  ChartedContrast(int numGroups, const double* groupMeans, const double* groupSizes, double* contrastCoefficients);

  double Noncentrality(double pooledSD, double sampleSize);

private:
  double EffectSize(double pooledSD);

  int numGroups_;
  const double* groupMeans_;
  const double* groupSizes_;
  double* coefficients_;
  double totalSize_;
  bool repaired_ = false;
  double value_ = 0;     ///< sum c_i m_i, once repaired
  double variance_ = 0;  ///< once repaired
};

}  // namespace kelpower

#endif
