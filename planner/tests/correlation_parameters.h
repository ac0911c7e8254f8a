#pragma once

#include <string>

#include "planner/chart.h"
#include "planner/test.h"

// What the descriptions of the tests of one correlation share.
namespace planner {

Parameter Correlation(std::string meaning);
Parameter NullCorrelation();
Parameter CaseCount(double smallest);
Parameter TowardsCorrelation();

/// Refuses to search a size for the power of no effect.
Condition CorrelationsDiffer();

/// Axes on which the design is at `n`, `null`, `r` and `r` - `null`. All but the first show the whole range unless the
/// user asks for a part.
Axis CaseAxis(double mostPartialledOut = 0);
Axis NullAxis();
Axis AlternativeAxis();
Axis DifferenceAxis();

/// The step of an export's grid of correlations, of the share of the range shown.
double CorrelationStep(const Range& shown, double share);

}  // namespace planner
