#ifndef KELPOWER_PLANNER_PICTURES_LASTING_H
#define KELPOWER_PLANNER_PICTURES_LASTING_H

#include "model/chart.h"

namespace planner {

/// A surface whose lines of equal power are fit to be drawn.
struct Lasting {
  Series surface;
  bool isSmoothed;
};

/// Along an axis over which the power of an exact test goes up and down like the teeth of a saw, the least power from
/// there on takes the place of the power. So a line shows where a power is reached to last, and not every tooth. Along
/// other axes the surface stays as it is.
Lasting LastingPower(const ChartData& chart);

}  // namespace planner

#endif
