#ifndef KELPOWER_PLANNER_PICTURES_LEVEL_LINES_H
#define KELPOWER_PLANNER_PICTURES_LEVEL_LINES_H

#include <vector>

#include "model/chart.h"

namespace planner {

/// A line through points (x[i], y[i]).
struct Line {
  Numbers x;
  Numbers y;
};

/// The lines along which the power of a surface is `level`, by interpolation on the edges of the grid's cells. They end
/// at gaps.
std::vector<Line> LevelLines(const Series& surface, double level);

}  // namespace planner

#endif
