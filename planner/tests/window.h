#pragma once

#include "planner/chart.h"

// Charts on whose axes the export has a grid of its own: the part that is shown is cut out of it.
namespace planner {

/// From a quarter of the size to twice the size, as far as `allowed` goes.
Range SizesAround(double size, const Range& allowed);

/// Refuses ends of an axis of sizes that the export does not draw with these inputs.
void CheckSizes(const Range& sizes, const Range& allowed);

/// The step of the grid for a share of the range shown, which is `wholeSpan` wide where the user gave none.
double StepOfGrid(const Range& shown, double wholeSpan, double share);

/// The points within the ranges; one with 0 for both ends leaves out nothing.
Series Window(const Series& series, const Range& x, const Range& y = {});

}  // namespace planner
