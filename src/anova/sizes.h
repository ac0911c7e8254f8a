#ifndef KELPOWER_ANOVA_SIZES_H
#define KELPOWER_ANOVA_SIZES_H

#include <vector>

#include "anova/groups.h"
#include "frame/answer.h"
#include "frame/function_view.h"

namespace kelpower::anova {

/// The allocation ratios scaled to a sum of 1.
std::vector<double> SharesOf(PerGroup ratios);

/// The total size at which `powerAt` reaches `power`. It is searched from two subjects a group on, below which a group
/// has no estimate of its variance. The power must not fall as the size grows. That of an F test or of a one-sided t
/// test in the direction of the effect does not (see `FTest` and `TTest`), because both its noncentrality and its
/// degrees of freedom grow with the size.
Answer TotalForPower(int numGroups, FunctionView<Answer(double total)> powerAt, double power);

/// The total size that solves slope * size = weight * t^2, t at the interval level 1 - alpha. It is searched from two
/// subjects a group on as well.
Answer TotalForHalfWidth(int numGroups, double slope, double weight, double alpha);

// A total spread over the groups in proportion to `ratios`, each size rounded up and at least 2. The two functions
// differ in the order of operations, which decides what is rounded up where a size is a whole number.

/// Sizes total * (ratio / sum).
std::vector<double> SpreadByShares(double total, PerGroup ratios);

/// Sizes total * ratio / sum.
std::vector<double> SpreadByRatios(double total, PerGroup ratios);

}  // namespace kelpower::anova

#endif
