#ifndef KELPOWER_CHI_SQUARE_POWER_H
#define KELPOWER_CHI_SQUARE_POWER_H

#include <optional>

#include "frame/answer.h"

namespace kelpower::chi_square {

/// A chi-square test of frequencies, of goodness of fit or of independence: rejects when chi-square exceeds its critical
/// value. Under the alternative chi-square is noncentral in the limit of large samples (Cohen 1988, "Statistical Power
/// Analysis for the Behavioral Sciences", 2nd ed., chapter 7; Guenther 1977, The American Statistician 31, 83-85). The
/// power never falls when the noncentrality grows.
class ChiSquareTest {
public:
  /// No test where there is no degree of freedom or no such level.
  static std::optional<ChiSquareTest> Checked(double df, double alpha);

  /// P(chi-square' > critical); refused where the noncentrality is negative.
  Answer Power(double noncentrality) const;

  /// The noncentrality at which the power is `power`; not reached where that is not between the level and 1.
  Answer NoncentralityFor(double power) const;

  double Df() const { return df_; }
  double Critical() const { return critical_; }

private:
  ChiSquareTest(double df, double alpha);

  double df_;
  double critical_;
};

/// The power with n observations of which each adds `effect` to the noncentrality: Cohen's w squared.
Answer Power(double df, double alpha, double effect, double n);

/// The number of observations, unrounded, at which the power is `power`.
Answer SizeForPower(double df, double alpha, double effect, double power);

}  // namespace kelpower::chi_square

#endif
