#ifndef KELPOWER_PLANNER_SOLVE_GRID_H
#define KELPOWER_PLANNER_SOLVE_GRID_H

#include <vector>

#include "model/chart.h"

namespace planner {

/// Where the points of one axis lie.
struct AxisGrid {
  const Axis* axis;
  Range range;                // from one end to the other
  Range allowed;              // the ends of the axis for the design
  double step;                // a share of the range, of even points
  double spacing;             // of whole points
  bool endsExcluded = false;  // those of a scale are no points
};

/// The spacing of whole points over the range. The usual range of a chart is thinned to what an eye tells apart, one
/// that the user gives only on wide surfaces.
double SpacingOf(const Range& range, bool isUsual, bool isSurface);

/// How many points the grid has at most.
double PointCount(const AxisGrid& grid);

/// The points themselves. Whole points are counted from the design, which is one of them.
Numbers Points(const AxisGrid& grid, const Inputs& design);

}  // namespace planner

#endif
