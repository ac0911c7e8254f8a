#ifndef KELPOWER_PROPORTIONS_INDEPENDENT_MARGINS_H
#define KELPOWER_PROPORTIONS_INDEPENDENT_MARGINS_H

#include <limits>

#include "frame/answer.h"
#include "proportions/constrained_proportions.h"

namespace kelpower::proportions {

/// The contrasts of two proportions that a test with margins must exclude: that it is at most `lower`, and that it is
/// at least `upper`. With both the test is one of equivalence.
struct ContrastLimits {
  Contrast contrast = Contrast::Difference;
  double lower = -std::numeric_limits<double>::infinity();
  double upper = std::numeric_limits<double>::infinity();

  bool HasLower() const { return lower != -std::numeric_limits<double>::infinity(); }
  bool HasUpper() const { return upper != std::numeric_limits<double>::infinity(); }

  /// Whether there is no such test: no limit, one that no two proportions have, or limits in the wrong order.
  bool AreRefused() const;
};

/// The standard error in the critical value: at the most likely proportions that have the limit (score test), the same
/// with the total N over N - 1, at the proportions observed, or pooled as if the proportions were equal.
enum class MarginMethod { FarringtonManning, MiettinenNurminen, Wald, Pooled };

/// How two proportions are tested against limits. The level is that of each limit.
struct IndependentMarginDesign {
  ContrastLimits limits;
  MarginMethod method;
  double alpha;
  bool isCorrected = false;  ///< for continuity
};

/// What one limit's part of the power is made of: Phi((distance - critical nullError - correction) / error).
struct LimitStatistic {
  double distance;    ///< from the limit to the contrast expected, above 0 where that lies inside
  double nullError;   ///< in the critical value
  double error;       ///< at the proportions expected
  double correction;  ///< for continuity
  double deviate;
};

/// The test for large samples at fixed group sizes.
class IndependentMarginTest {
public:
  IndependentMarginTest(const IndependentMarginDesign& design, double size1, double size2);

  /// The probability that the test excludes its limits. Refused for sizes below 1, a level or proportions outside (0,
  /// 1), limits that no proportions have, and what the method has no form for.
  Answer Power(const TwoProportions& proportions) const;

  LimitStatistic AtLower(const TwoProportions& proportions) const { return At(design_.limits.lower, proportions, 1); }
  LimitStatistic AtUpper(const TwoProportions& proportions) const { return At(design_.limits.upper, proportions, -1); }
  double CriticalZ() const { return criticalZ_; }

private:
  bool IsRefused() const;
  LimitStatistic At(double limit, const TwoProportions& proportions, double sign) const;

  IndependentMarginDesign design_;
  double n1_;
  double n2_;
  double criticalZ_;
};

}  // namespace kelpower::proportions

#endif
