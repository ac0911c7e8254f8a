#ifndef KELPOWER_PROPORTIONS_ONE_SAMPLE_MARGINS_H
#define KELPOWER_PROPORTIONS_ONE_SAMPLE_MARGINS_H

#include <limits>

#include "frame/answer.h"
#include "frame/stop.h"
#include "proportions/critical_counts.h"

namespace kelpower::proportions {

/// The proportions that a test with margins must exclude: that it is at most `lower`, and that it is at least `upper`.
/// Without the one or the other it is a test of non-inferiority, or of superiority by a margin; with both it is one of
/// equivalence.
struct ProportionLimits {
  double lower = -std::numeric_limits<double>::infinity();
  double upper = std::numeric_limits<double>::infinity();

  bool HasLower() const { return lower != -std::numeric_limits<double>::infinity(); }
  bool HasUpper() const { return upper != std::numeric_limits<double>::infinity(); }
};

/// How one proportion is tested against limits. The level is that of each limit.
struct OneSampleMarginDesign {
  ProportionLimits limits;
  double alpha;
  bool isExact;              ///< by the binomial distribution instead of the normal one
  bool isCorrected = false;  ///< for continuity; the normal test only
  bool isObserved = false;   ///< the standard error is that of the proportion observed, not of the limit; normal test
};

/// What the power of the normal test is made of. One limit's part is Phi(lower) or Phi(upper).
struct OneSampleMarginStatistic {
  double critical;    ///< normal quantile
  double correction;  ///< for continuity
  double lowerError;  ///< standard error in the test of the lower limit
  double upperError;
  double error;  ///< at the proportion expected
  double lower;  ///< normal deviate of the lower limit's test
  double upper;
};

/// The test at a size.
class OneSampleMarginTest {
public:
  explicit OneSampleMarginTest(const OneSampleMarginDesign& design);

  /// The probability that the test excludes its limits. Refused for a size below 1, a proportion outside [0, 1], limits
  /// outside (0, 1) or in the wrong order, and a level outside (0, 1).
  Answer Power(double size, double proportion) const;

  /// What the normal test goes by.
  OneSampleMarginStatistic Statistic(double size, double proportion) const;

  /// The counts from `lower` to `upper` are those with which the exact test at a whole size excludes its limits.
  CriticalRegion Region(double size) const { return {LeastCount(size), MostCount(size)}; }
  double LeastCount(double size) const;
  double MostCount(double size) const;

  /// The level that the exact test attains, the larger one of those at its limits.
  double AttainedLevel(double size) const;

private:
  bool RefusesDesign() const;
  double NormalPower(double size, double proportion) const;
  Answer ExactPower(double size, double proportion) const;

  OneSampleMarginDesign design_;
  TailLevel tail_;
};

/// The smallest size at which the exact test reaches a power, and the smallest from which on every size does. Not
/// reached where the proportion expected does not lie inside the limits, and for a power of 1 or more; uncountable
/// where the size may be above `largestCount`. `stop` is asked once for each stretch of sizes.
Answer FirstSize(const OneSampleMarginDesign& design, double proportion, double power, Stop stop = {});
Answer LastingSize(const OneSampleMarginDesign& design, double proportion, double power, Stop stop = {});

}  // namespace kelpower::proportions

#endif
