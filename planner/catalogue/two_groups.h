#ifndef KELPOWER_PLANNER_CATALOGUE_TWO_GROUPS_H
#define KELPOWER_PLANNER_CATALOGUE_TWO_GROUPS_H

#include "catalogue/axes.h"
#include "model/chart.h"
#include "model/parameter.h"

// What the tests of two independent groups share.
namespace planner {

/// The ratio of the sizes to find.
Parameter RatioOfSizes();

/// The first mean less the second.
double DifferenceOfMeans(const Inputs& in);

/// The second size over the first.
double SizeRatio(const Inputs& in);

/// An axis of ratios of the sizes, which keep their total.
Axis SizeRatioAxis();

}  // namespace planner

#endif
