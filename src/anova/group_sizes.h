#ifndef KELPOWER_ANOVA_GROUP_SIZES_H
#define KELPOWER_ANOVA_GROUP_SIZES_H

#include "frame/root_finders.h"
#include "kelpower.h"

namespace kelpower {

/// Makes room for the sizes of all groups, each missing until it is stored.
void ResizeToMissing(DoubleVector& groupSizes, int numGroups);

/// The allocation ratios scaled to a sum of 1.
DoubleVector SharesOf(int numGroups, const double* groupRatios);

/// The total size at which `objective` is zero, searched from two subjects a group, below which a group has no
/// estimate of its variance. Missing when there is none.
double SolveTotalForPower(int numGroups, RootObjective objective);
double SolveTotalForHalfWidth(int numGroups, RootObjective objective);

/// Spreads a total over the groups in proportion to `groupRatios`, each size rounded up and at least 2, stores the
/// sizes and returns their sum. A missing total gives every group 2; that is intended.
/// The two differ in the order of operations, which decides what is rounded up where a size is a whole number:
/// total * (ratio / sum) here,
double StoreByShares(double total, int numGroups, const double* groupRatios, DoubleVector& groupSizes);
/// total * ratio / sum here.
double StoreByRatios(double total, int numGroups, const double* groupRatios, DoubleVector& groupSizes);

}  // namespace kelpower

#endif
