#ifndef KELPOWER_PLANNER_SOLVE_GRID_H
#define KELPOWER_PLANNER_SOLVE_GRID_H

#include <vector>

#include "model/chart.h"
#include "solve/prepared_question.h"

namespace planner {

/// Where the points of one axis lie.
struct AxisGrid {
  const Axis* axis;
  Range range;     // from one end to the other
  double step;     // a share of the range or of the scale; unused for sizes
  double spacing;  // of sizes
};

/// The grids of the chart over these ranges.
std::vector<AxisGrid> Grids(const Chart& chart, const std::vector<Range>& ranges, double step);

/// How many points the grid has at most.
double PointCount(const AxisGrid& grid);

/// The points themselves.
Numbers Points(const AxisGrid& grid, const Inputs& design);

/// The power at each point of one or two grids, NaN where there is none. Throws Stopped on request.
Series ComputeSeries(PreparedQuestion& power, const std::vector<AxisGrid>& grids);

}  // namespace planner

#endif
