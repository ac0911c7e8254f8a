#ifndef KELPOWER_MEANS_INDEPENDENT_H
#define KELPOWER_MEANS_INDEPENDENT_H

#include <optional>

#include "means/mean_test.h"

namespace kelpower {

// Tests of two independent groups. Each is none where its input is refused.

/// The pooled test of a standardised effect size. The two-sided test checks the second size through the ratio of the
/// sizes, the one-sided test directly; that they differ is intended.
std::optional<MeanTest> StandardizedTest(Sides sides, double sampleSize1, double sampleSize2, double alpha);

/// The test of a raw difference of means: pooled where the standard deviations are equal, else in the Welch form.
std::optional<MeanTest> IndependentTest(Sides sides, double sampleSize1, double sd1, double sampleSize2, double sd2,
                                        double alpha);

/// The test of a raw difference of means at a total size split by ratio = size 2 / size 1: always in the Welch form,
/// also where the standard deviations are equal.
std::optional<MeanTest> WelchTestByTotal(Sides sides, double totalSize, double ratio, double sd1, double sd2,
                                         double alpha);

}  // namespace kelpower

#endif
