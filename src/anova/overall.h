#ifndef KELPOWER_ANOVA_OVERALL_H
#define KELPOWER_ANOVA_OVERALL_H

#include <optional>

#include "anova/groups.h"
#include "frame/answer.h"
#include "frame/powers_over_effects.h"
#include "frame/rejection.h"

// The overall F test of one-way analysis of variance. Cohen, J. (1988), Statistical Power Analysis for the Behavioral
// Sciences, 2nd ed., ch. 8, with the exact noncentral F distribution.

namespace kelpower::anova {

/// sum(m_i n_i) / sum(n_i), formed around the first mean. So equal means give exactly that mean, and large means close
/// to each other keep the digits of their differences. NaN without groups.
double WeightedGrandMean(PerGroup means, PerGroup sizes);

/// How far the group means lie apart, weighted by the group sizes: S = sum (n_i / W) (m_i - G)^2.
/// S is kept as scale^2 * scaledVariance. The square of a deviation, or its product with a total size, may overflow
/// where the noncentrality does not.
struct GroupSpread {
  double scale;           ///< the largest distance of a mean from the grand mean G
  double scaledVariance;  ///< S / scale^2

  static GroupSpread Of(PerGroup means, PerGroup sizes);

  /// S / (sd^2 / totalSize)
  double Noncentrality(double sd, double totalSize) const;
};

/// The weighted distance sqrt(sum n_i (m_i - G)^2) of the means from their grand mean, 0 for equal means. It is formed
/// as it is written, with G = sum(m_i n_i) / sum(n_i), because a count of points is rounded up from it. A scaled form
/// stands in where the sum overflows or underflows.
double WeightedDistance(PerGroup means, PerGroup sizes);

/// The root mean square of standardized effects: that of the deviations from the size-weighted grand mean, which are
/// not weighted themselves, with divisor k - 1, in units of `sd`.
double RootMeanSquareEffect(PerGroup means, PerGroup sizes, double sd);

/// An overall effect: f, or the proportion of variance that the groups explain, eta squared.
struct EffectSize {
  double value;
  bool isEtaSquared;

  /// f^2 N, or eta^2 N / (1 - eta^2): Cohen (1988), eqs. 8.2.19 and 8.3.1.
  double Noncentrality(double totalSize) const;
};

/// The test at one total size and level: what its power at every effect shares.
class OverallTest {
public:
  OverallTest(int numGroups, double totalSize, double alpha);

  /// Refused for fewer than two groups, fewer subjects than groups, or no such level.
  Answer Power(double noncentrality) const;

  /// The same to 1e-12, faster where many effects are asked about.
  Answer PowerOfMany(double noncentrality);
  /// None where the power is refused.
  const std::optional<FTest>& AtCriticalValue() const { return test_; }

private:
  std::optional<FTest> test_;
  std::optional<PowersOverEffects> many_;
};

/// The power for given means; also refused for a standard deviation that is not above 0.
Answer PowerOfMeans(const GroupSpread& spread, double sd, int numGroups, double totalSize, double alpha);

Answer PowerOfEffect(const EffectSize& effect, int numGroups, double totalSize, double alpha);

// Total sizes, to be spread over the groups.

Answer TotalForPowerOfMeans(PerGroup means, double sd, PerGroup ratios, double power, double alpha);
Answer TotalForPowerOfEffect(const EffectSize& effect, int numGroups, double power, double alpha);
Answer TotalForHalfWidthOfGrandMean(double halfWidth, int numGroups, double sd, double alpha);

/// Half-width t sd / sqrt(N) of the confidence interval of the grand mean.
double HalfWidthOfGrandMean(int numGroups, double totalSize, double sd, double alpha);

}  // namespace kelpower::anova

#endif
