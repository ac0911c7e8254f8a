#include "frame/axes.h"

#include <cmath>

#include "frame/counts.h"

namespace kelpower {

std::optional<Axis> CountedAxis(double count, double start, double step, std::optional<double> end) {
  if (!(count >= 0 && count <= largestCount)) return std::nullopt;
  return Axis{static_cast<std::int32_t>(count), start, step, end};
}

std::optional<Axis> SizeAxis(double from, double to) { return CountedAxis(to - from + 1, from, 1); }

std::optional<Axis> SurfaceSizeAxis(double from, double to) {
  const double span = to - from;
  const double step = span < 1000 ? 1 : 2;
  return CountedAxis(std::ceil(span / step) + 1, from, step);
}

std::optional<Axis> FractionAxis(double start, double end, double stepFraction, AxisEnd axisEnd) {
  if (!(stepFraction > 0)) return std::nullopt;
  if (start == end) return Axis{1, start, 0};
  const double range = end - start;
  const double step = stepFraction * range;
  const double steps = std::ceil(range / step);
  switch (axisEnd) {
    case AxisEnd::Open: return CountedAxis(steps, start, step);
    case AxisEnd::OnGrid: return CountedAxis(steps + 1, start, step);
    case AxisEnd::Exact: break;
  }
  return CountedAxis(steps + 1, start, step, end);
}

std::optional<Axis> StepAxis(double start, double end, double step) {
  if (!(step > 0)) return std::nullopt;
  return CountedAxis(std::ceil((end - start) / step) + 1, start, step, end);
}

std::optional<Axis> InnerAxis(double count, double origin, double step) {
  if (!(step > 0)) return std::nullopt;
  std::optional<Axis> axis = CountedAxis(count, origin, step);
  if (axis) axis->firstIndex = 1;
  return axis;
}

}  // namespace kelpower
