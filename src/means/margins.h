#ifndef KELPOWER_MEANS_MARGINS_H
#define KELPOWER_MEANS_MARGINS_H

#include <optional>

#include "frame/answer.h"
#include "frame/rejection.h"
#include "means/independent.h"

// A mean or a difference of means against a margin in place of zero: non-inferiority and superiority by a margin. The
// statistic is (estimate - margin) / standard error, so that t is noncentral t with the distance of the true difference
// from the margin, in standard errors, as its noncentrality (Blackwelder 1982, Controlled Clinical Trials 3, 345-353;
// Chow, Shao and Wang 2008, "Sample Size Calculations in Clinical Research", 2nd ed., chapter 3).
//
// A ratio of means of lognormal data is a difference of the means of the logarithms.

namespace kelpower::means {

/// Of one mean, or of the mean of the differences of pairs.
DifferenceDistribution SingleMean(double size, double sd);

/// The standard deviation of the logarithms of lognormal data with this coefficient of variation: sqrt(ln(1 + cv^2))
/// (Johnson, Kotz and Balakrishnan 1994, "Continuous Univariate Distributions", volume 1, section 14.3).
double SdOfLogarithms(double cv);

/// ln(ratio) - ln(other), which keeps its digits where the two are close. NaN unless both are above 0.
double LogDistance(double ratio, double other);

/// The one-sided test on this estimate. None for a level outside (0, 1), or where the degrees of freedom or the standard
/// error are not above 0.
std::optional<TTest> OneSidedTest(double alpha, const DifferenceDistribution& estimate);

/// The power to show that a difference lies beyond a margin. `distance` is that of the true difference from it, positive
/// on the side that is to be shown.
Answer PowerBeyondMargin(double distance, double alpha, const DifferenceDistribution& estimate);

}  // namespace kelpower::means

#endif
