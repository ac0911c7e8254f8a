#ifndef KELPOWER_VARIANCES_TWO_VARIANCES_H
#define KELPOWER_VARIANCES_TWO_VARIANCES_H

#include <optional>

#include "frame/answer.h"

namespace kelpower::variances {

/// The test that two independent normal populations have the same variance: the ratio of the sample variances, first
/// over second, has the distribution of F on n1 - 1 and n2 - 1 degrees of freedom (NIST/SEMATECH e-Handbook of
/// Statistical Methods, section 1.3.5.9). The power follows from the same distribution, without an approximation: under
/// the alternative it is stretched by the ratio of the variances. The two-sided test has half of the level in each tail;
/// a one-sided one rejects in the direction of the alternative.
class TwoVariancesTest {
public:
  /// No test with fewer than two observations in a group or without a level.
  static std::optional<TwoVariancesTest> Checked(double n1, double n2, double alpha, bool isOneSided);

  /// At the first variance over the second, above 0 and finite.
  Answer Power(double ratio) const;

  double Df1() const { return df1_; }
  double Df2() const { return df2_; }
  double UpperCritical() const { return 1 / upperReciprocal_; }
  double LowerCritical() const { return lower_; }

  /// The ratio at which the power of the two-sided test is least: it falls up to there and rises from there on.
  double RatioOfLeastPower() const;

private:
  TwoVariancesTest(double n1, double n2, double alpha, bool isOneSided);

  double df1_;
  double df2_;
  bool isOneSided_;
  double lower_;
  double upperReciprocal_;  ///< of the upper critical value: a lower one of 1 / F
};

}  // namespace kelpower::variances

#endif
