#ifndef KELPOWER_EXPORTS_ANOVA_GROUP_SIZES_H
#define KELPOWER_EXPORTS_ANOVA_GROUP_SIZES_H

#include "anova/groups.h"
#include "frame/answer.h"
#include "kelpower.h"

// How sizes of groups are handed to the caller.

namespace kelpower::exports {

/// Makes room for the sizes of all groups, each missing until it is stored.
void ResizeToMissing(DoubleVector& groupSizes, int numGroups);

// Each stores a total size spread over the groups and returns the sum of the sizes. Without a total every group has 2;
// that is intended. A size for a power is spread by shares, one for a half-width by ratios.

double StoreByShares(Answer total, anova::PerGroup ratios, DoubleVector& groupSizes);
double StoreByRatios(Answer total, anova::PerGroup ratios, DoubleVector& groupSizes);

}  // namespace kelpower::exports

#endif
