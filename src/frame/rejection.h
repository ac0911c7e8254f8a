#ifndef KELPOWER_FRAME_REJECTION_H
#define KELPOWER_FRAME_REJECTION_H

namespace kelpower {

/// An F test: rejects when F exceeds its critical value.
struct FTest {
  double df1;
  double df2;
  double critical;
  double eps;  ///< wanted accuracy of the noncentral probability

  static FTest AtLevel(double alpha, double df1, double df2, double eps = 1e-12);

  /// The probability of rejection, P(F' > critical). A missing probability counts as 0, so the power is then 1.
  double Power(double noncentrality) const;
};

/// Tuning of the t quantile.
struct QuantileTuning {
  double a = 1e-40;
  double b = 1e-30;
};

/// A t test at `df` degrees of freedom.
struct TTest {
  double df;
  double critical;

  static TTest OneSided(double alpha, double df, QuantileTuning tuning = {});
  static TTest TwoSided(double alpha, double df, QuantileTuning tuning = {});

  /// P(T' > critical). A missing probability counts as 0.
  double PowerUpperTail(double noncentrality) const;

  /// P(T' > critical) + P(T' < -critical), both tails counted. Missing probabilities count as 0.
  double PowerBothTails(double noncentrality) const;
};

/// The t quantile that half-widths of intervals at level 1 - alpha are multiplied by.
double IntervalQuantileT(double alpha, double df);

}  // namespace kelpower

#endif
