#ifndef KELPOWER_VARIANCES_ONE_VARIANCE_H
#define KELPOWER_VARIANCES_ONE_VARIANCE_H

#include <optional>

#include "frame/answer.h"

namespace kelpower::variances {

/// The test that the variance of a normal population is a fixed value: (n - 1) s^2 over that value is chi-square
/// distributed on n - 1 degrees of freedom (NIST/SEMATECH e-Handbook of Statistical Methods, section 1.3.5.8). The
/// power follows from the same distribution, without an approximation: under the alternative it is stretched by the
/// variance over its null value. The two-sided test has half of the level in each tail; a one-sided one rejects in the
/// direction of the alternative.
class VarianceTest {
public:
  /// No test with fewer than two observations or without a level.
  static std::optional<VarianceTest> Checked(double n, double alpha, bool isOneSided);

  /// At the variance over its null value, above 0 and finite.
  Answer Power(double ratio) const;

  double Df() const { return df_; }
  double UpperCritical() const { return upper_; }
  double LowerCritical() const { return lower_; }

  /// The ratio at which the power of the two-sided test is least: it falls up to there and rises from there on.
  double RatioOfLeastPower() const;

private:
  VarianceTest(double n, double alpha, bool isOneSided);

  double df_;
  bool isOneSided_;
  double upper_;
  double lower_;
};

}  // namespace kelpower::variances

#endif
