#ifndef KELPOWER_PLANNER_SOLVE_CHART_H
#define KELPOWER_PLANNER_SOLVE_CHART_H

#include <string>
#include <vector>

#include "model/chart.h"
#include "model/test.h"

namespace planner {

/// Computes a chart. Sizes that the values ask for are found first, and are the design. Throws an InputError when the
/// inputs or the range are wrong, and a NoSolution where no sizes are found. `stop` may end it between two points, and
/// then Stopped is thrown; it may be null.
ChartData ComputeChart(const Test& test, const ChartRequest& request, const InputValues& values,
                       StopRequest* stop = nullptr);

}  // namespace planner

#endif
