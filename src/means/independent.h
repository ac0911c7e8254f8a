#ifndef KELPOWER_MEANS_INDEPENDENT_H
#define KELPOWER_MEANS_INDEPENDENT_H

#include <optional>

#include "frame/answer.h"
#include "means/t_test_of_a_mean.h"

// The t test of two independent groups (Cohen 1988, sections 2.2 and 2.3). The unequal-variance form has the degrees of
// freedom of Welch (1938, Biometrika 29) and Satterthwaite (1946, Biometrics Bulletin 2).

namespace kelpower::means {

/// The sampling distribution of a difference of means.
struct DifferenceDistribution {
  double df;  ///< degrees of freedom of t
  double standardError;
};

DifferenceDistribution PooledDifference(double n1, double n2, double sd);
DifferenceDistribution WelchDifference(double n1, double sd1, double n2, double sd2);

/// How two groups scatter.
struct GroupSpreads {
  double sd1;     ///< standard deviation in group 1
  double sd2;     ///< standard deviation in group 2
  bool isPooled;  ///< sd1 stands for both groups; otherwise the form of Welch

  DifferenceDistribution At(double n1, double n2) const;
};

/// A test that is planned.
struct TwoSampleDesign {
  double meanDifference;  ///< in the unit of the standard deviations
  GroupSpreads spreads;
  Sides sides;
  double alpha;  ///< significance level
};

/// The test at two sizes, which takes differences of means. None for a size of 1 or less, a standard deviation that is
/// not above 0, or a level outside (0, 1).
std::optional<TTestOfAMean> TwoSampleTest(const GroupSpreads& spreads, Sides sides, double alpha, double n1, double n2);

Answer Power(const TwoSampleDesign& design, double n1, double n2);

/// The unrounded size of group 1 at which the test reaches `power`, with `ratio` times that in group 2.
Answer FirstSizeForPower(const TwoSampleDesign& design, double ratio, double power);

/// A confidence interval of the difference of the means.
struct TwoSampleInterval {
  GroupSpreads spreads;
  double alpha;  ///< 1 minus the confidence level
};

double HalfWidth(const TwoSampleInterval& interval, double n1, double n2);

/// The unrounded size of group 1, with `ratio` times that in group 2.
Answer FirstSizeForHalfWidth(const TwoSampleInterval& interval, double ratio, double halfWidth);

}  // namespace kelpower::means

#endif
