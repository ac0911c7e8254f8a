#pragma once

#include "catalogue/axes.h"
#include "model/chart.h"
#include "model/parameter.h"

// What the tests of two independent groups share.
namespace planner {

/// The ratio of the sizes to find.
Parameter RatioOfSizes();

/// The second size over the first.
double SizeRatio(const Inputs& in);

/// An axis of ratios of the sizes, which keep their total.
Axis SizeRatioAxis();

}  // namespace planner
