#ifndef KELPOWER_ANOVA_CONTRAST_H
#define KELPOWER_ANOVA_CONTRAST_H

#include <optional>
#include <vector>

#include "anova/groups.h"
#include "frame/answer.h"
#include "frame/rejection.h"

// The test of a contrast of group means, sum c_i m_i: one-sided a t test, two-sided an F test on 1 degree of freedom.

namespace kelpower::anova {

/// sum c_i m_i
double ContrastValue(PerGroup coefficients, PerGroup means);

/// Q = sum c_i^2 / n_i: the variance of the estimated contrast in units of the within-group variance. Infinite where a
/// group has a coefficient and no subjects.
double ContrastVariance(PerGroup coefficients, PerGroup sizes);

/// A contrast at given weights of the groups, for noncentralities at any effect and total size.
class WeightedContrast {
public:
  WeightedContrast() = default;
  WeightedContrast(PerGroup coefficients, PerGroup weights);

  /// The noncentrality r d^2 / Q of the standardised effect d at a total size of r times the sum of the weights. It is
  /// 0 where Q is infinite.
  double Noncentrality(double effectSize, double relativeSize) const;

  /// A total size over the sum of the weights.
  double RelativeSize(double totalSize) const { return totalSize / sumOfWeights_; }

private:
  double scale_ = 1;           ///< a power of two by which the coefficients were divided, so that Q does not overflow
  double scaledVariance_ = 0;  ///< Q / scale^2
  double sumOfWeights_ = 0;
};

/// A contrast of two groups: +1 at the first, -1 at the second. Group numbers start at 1; one that names no group
/// leaves the coefficients as they are.
std::vector<double> PairContrast(int numGroups, int firstGroup, int secondGroup);

/// How the level of all k (k - 1) / 2 pairwise comparisons is divided among them.
enum class Adjustment { Bonferroni, Sidak, None };

/// The level of one of the comparisons.
double AdjustedAlpha(Adjustment adjustment, int numGroups, double alpha);

/// The test at one total size and level: what its power at every effect shares.
class ContrastTest {
public:
  ContrastTest(int numGroups, double totalSize, bool isOneSided, double alpha);

  /// False when there are too few groups, fewer subjects than groups, or no such level; the power is then refused.
  bool IsValid() const { return fTest_ || tTest_; }

  /// The power at a noncentrality of the F distribution, whose square root is that of the t distribution.
  Answer Power(double noncentrality) const;

  /// The two-sided test, and the one-sided one: one of them, or none where the power is refused.
  const std::optional<FTest>& TwoSided() const { return fTest_; }
  const std::optional<TTest>& OneSided() const { return tTest_; }

private:
  std::optional<FTest> fTest_;
  std::optional<TTest> tTest_;
};

/// A contrast whose test is planned.
struct ContrastDesign {
  PerGroup coefficients;
  PerGroup weights;   ///< sizes or allocation ratios of the groups
  double effectSize;  ///< sum c_i m_i in standard deviations
  bool isOneSided;    ///< in the direction of the effect
  double alpha;       ///< significance level
};

/// The power at a total size that is spread over the groups by their weights.
Answer Power(const ContrastDesign& design, double totalSize);

/// The total size that gives a contrast the power, with its variance taken at the shares of the groups.
Answer TotalForPower(const ContrastDesign& design, double power);

/// A confidence interval of a contrast.
struct ContrastInterval {
  PerGroup coefficients;
  PerGroup weights;  ///< sizes or allocation ratios of the groups
  double sd;         ///< within groups
  double alpha;      ///< 1 minus the confidence level
};

double HalfWidth(const ContrastInterval& interval, double totalSize);
Answer TotalForHalfWidth(const ContrastInterval& interval, double halfWidth);

}  // namespace kelpower::anova

#endif
