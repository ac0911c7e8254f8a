#ifndef KELPOWER_EXPORTS_MEANS_INDEPENDENT_H
#define KELPOWER_EXPORTS_MEANS_INDEPENDENT_H

#include <optional>

#include "means/independent.h"
#include "means/t_test_of_a_mean.h"

namespace kelpower::exports {

using TwoSampleTest = std::optional<means::TTestOfAMean>;

/// The power at `effect`; missing where there is no test because its design was rejected.
double PowerOrMissing(const TwoSampleTest& test, double effect);

/// The pooled test of a standardised effect size. The two-sided test checks the second size through the ratio of the
/// sizes, the one-sided test directly; that they differ is intended.
TwoSampleTest StandardizedTest(means::Sides sides, double sampleSize1, double sampleSize2, double alpha);

/// The test of a raw difference of means at a total size split by ratio = size 2 / size 1: always in the Welch form,
/// also where the standard deviations are equal; that is intended.
TwoSampleTest WelchTestByTotal(means::Sides sides, double totalSize, double ratio, double sd1, double sd2,
                               double alpha);

}  // namespace kelpower::exports

#endif
