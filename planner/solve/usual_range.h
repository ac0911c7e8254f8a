#ifndef KELPOWER_PLANNER_SOLVE_USUAL_RANGE_H
#define KELPOWER_PLANNER_SOLVE_USUAL_RANGE_H

#include <functional>

#include "model/chart.h"

namespace planner {

/// The values of a design moved along an axis, NaN where there is none.
using ValueAlong = std::function<double(double at)>;

/// What the usual range of an axis is to show.
struct RangeRequest {
  const Axis* axis;
  Range allowed;  // the ends of the axis for this design
  double design;  // its place
  Quantity quantity;
  double alpha;
  double high = 0.99;  // the power to be shown
};

/// The ends of an axis for a design, from its limits and its scale.
Range AllowedOn(const Axis& axis, const Inputs& design);

/// From where the power is near the level to where it is near 1, with the design in between. An effect has its range on
/// one side of the null value. Sizes and half-widths go to some times those of the design. The ends are round numbers.
/// No length: there is no such range.
Range UsualRange(const RangeRequest& request, const ValueAlong& value);

}  // namespace planner

#endif
