#ifndef KELPOWER_MEANS_ONE_SAMPLE_H
#define KELPOWER_MEANS_ONE_SAMPLE_H

#include "frame/answer.h"
#include "means/t_test_of_a_mean.h"

// The t test of one mean. Under the alternative, t is noncentral t on n - 1 degrees of freedom with noncentrality
// sqrt(n) d, where d = (mean - test value) / sd (Cohen 1988, "Statistical Power Analysis for the Behavioral Sciences",
// chapter 2; Johnson, Kotz and Balakrishnan 1995, "Continuous Univariate Distributions", volume 2, chapter 31).
// The test of paired samples is that of the differences of the pairs.

namespace kelpower::means {

/// The test at one size, on n - 1 degrees of freedom. Its effect is the standardised effect size. Nothing is checked.
inline TTestOfAMean OneSampleTest(Sides sides, double size, double alpha) {
  return {sides, alpha, size - 1, 1 / std::sqrt(size)};
}

/// A test that is planned.
struct OneSampleDesign {
  double effectSize;  ///< d, in standard deviations
  Sides sides;
  double alpha;  ///< significance level
};

/// Refused for a size of 1 or less or a level outside (0, 1).
Answer Power(const OneSampleDesign& design, double size);

/// The unrounded size at which the test reaches `power`.
Answer SizeForPower(const OneSampleDesign& design, double power);

/// A confidence interval of one mean.
struct MeanInterval {
  double sd;
  double alpha;  ///< 1 minus the confidence level
};

double HalfWidth(const MeanInterval& interval, double size);

/// The unrounded size.
Answer SizeForHalfWidth(const MeanInterval& interval, double halfWidth);

}  // namespace kelpower::means

#endif
