#ifndef KELPOWER_ANOVA_GROUP_SIZES_H
#define KELPOWER_ANOVA_GROUP_SIZES_H

#include "frame/function_view.h"
#include "kelpower.h"

namespace kelpower {

/// Makes room for the sizes of all groups, each missing until it is stored.
void ResizeToMissing(DoubleVector& groupSizes, int numGroups);

/// The allocation ratios scaled to a sum of 1.
DoubleVector SharesOf(int numGroups, const double* groupRatios);

/// The total size at which `powerAt` reaches `power`, searched from two subjects a group, below which a group has no
/// estimate of its variance. Missing when there is none. The power must not fall as the size grows; that of an F test
/// or of a one-sided t test in the direction of the effect does not (see `FTest` and `TTest`), because both its
/// noncentrality and its degrees of freedom grow with the size.
double SolveTotalForPower(int numGroups, FunctionView<double(double size)> powerAt, double power);

/// The total size that solves slope * size = weight * t^2, t at the interval level 1 - alpha; likewise from two
/// subjects a group on.
double SolveTotalForHalfWidth(int numGroups, double slope, double weight, double alpha);

/// Spreads a total over the groups in proportion to `groupRatios`, each size rounded up and at least 2, stores the
/// sizes and returns their sum. A missing total gives every group 2; that is intended.
/// The two differ in the order of operations, which decides what is rounded up where a size is a whole number:
/// total * (ratio / sum) here,
double StoreByShares(double total, int numGroups, const double* groupRatios, DoubleVector& groupSizes);
/// total * ratio / sum here.
double StoreByRatios(double total, int numGroups, const double* groupRatios, DoubleVector& groupSizes);

}  // namespace kelpower

#endif
