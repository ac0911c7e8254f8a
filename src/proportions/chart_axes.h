#ifndef KELPOWER_PROPORTIONS_CHART_AXES_H
#define KELPOWER_PROPORTIONS_CHART_AXES_H

#include <cmath>
#include <optional>

#include "frame/axes.h"

namespace kelpower {

/// The positions origin + step, origin + 2 step, ...; the origin itself is none of them. No axis unless step is above
/// 0.
inline std::optional<Axis> GridAxis(double count, double origin, double step) {
  if (!(step > 0)) return std::nullopt;
  std::optional<Axis> axis = CountedAxis(count, origin, step);
  if (axis) axis->firstIndex = 1;
  return axis;
}

/// Proportions inside (0, 1): step, 2 step, ..., 1 - step or so.
inline std::optional<Axis> ProportionGrid(double step) { return GridAxis(-std::trunc(-1 / step) - 1, 0, step); }

}  // namespace kelpower

#endif
