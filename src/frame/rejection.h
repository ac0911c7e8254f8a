#ifndef KELPOWER_FRAME_REJECTION_H
#define KELPOWER_FRAME_REJECTION_H

namespace kelpower {

/// Wanted of noncentral probabilities.
constexpr double noncentralAccuracy = 1e-12;

/// An F test: rejects when F exceeds its critical value.
///
/// At a given level the power never falls when the noncentrality grows, because the noncentral F has a monotone
/// likelihood ratio. Nor does it fall when df2 grows: the test on fewer error degrees of freedom ignores data that the
/// uniformly most powerful invariant test has (Lehmann and Romano 2005, "Testing Statistical Hypotheses", 3rd ed.,
/// section 7.1).
struct FTest {
  double df1;       ///< of the effect
  double df2;       ///< of the error
  double critical;  ///< value of F
  double eps;       ///< wanted accuracy of the noncentral probability

  static FTest AtLevel(double alpha, double df1, double df2, double eps = noncentralAccuracy);

  /// The probability of rejection, P(F' > critical). A missing probability counts as 0, so the power is then 1.
  double Power(double noncentrality) const;
};

/// Tuning of the t quantile.
struct QuantileTuning {
  double a = 1e-40;
  double b = 1e-30;
};

/// A t test at `df` degrees of freedom.
///
/// At a given level the power of both tails never falls when the noncentrality moves away from 0 or the degrees of
/// freedom grow. Nor does that of the upper tail, where the noncentrality is at least 0. These tests are uniformly most
/// powerful unbiased, and one on fewer degrees of freedom ignores data (Lehmann and Romano 2005, section 5.2).
struct TTest {
  double df;
  double critical;  ///< value of t

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
