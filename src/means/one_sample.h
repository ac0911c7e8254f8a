#ifndef KELPOWER_MEANS_ONE_SAMPLE_H
#define KELPOWER_MEANS_ONE_SAMPLE_H

#include "means/mean_test.h"

// What the test of one sample shares with that of paired samples, which is the test of the differences of the pairs.

namespace kelpower {

/// The test of one mean, on n - 1 degrees of freedom. Its effect is the standardised effect size.
inline MeanTest OneSampleTest(Sides sides, double sampleSize, double alpha) {
  return {sides, alpha, sampleSize - 1, 1 / std::sqrt(sampleSize)};
}

/// The power of the one-sided test; missing for a size of 1 or less or a level outside (0, 1).
double DirectionalPower(double sampleSize, double effectSize, double alpha);

/// The unrounded size at which the one-sided test reaches `power`.
double DirectionalSize(double power, double effectSize, double alpha);

}  // namespace kelpower

#endif
