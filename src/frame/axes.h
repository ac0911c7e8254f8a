#ifndef KELPOWER_FRAME_AXES_H
#define KELPOWER_FRAME_AXES_H

#include <cstdint>
#include <optional>

namespace kelpower {

/// The positions along one axis of a chart: start, start + step, ...
struct Axis {
  std::int32_t count;
  double start;
  double step;
  std::optional<double> end = std::nullopt;  ///< the last position where it is set apart from the grid
  std::int32_t firstIndex = 0;               ///< 1 where the first position is start + step
  double fraction = 1;                       ///< of `step` that is one step; the index multiplies `step` first

  double At(std::int32_t i) const {
    if (end && i == count - 1) return *end;
    // Rounded before the sum even where a compiler may fuse the two, so that a point meets the end of its range.
    const volatile double distance = (i + firstIndex) * step * fraction;
    return distance + start;
  }
};

/// What an axis between two ends has beyond the positions that lie below its end.
enum class AxisEnd {
  Open,    ///< none: stops one step short of the end
  OnGrid,  ///< one more step, which may pass the end by a fraction of it
  Exact    ///< the end itself; the last step is shorter where the range is no whole number of steps
};

// Makers of axes. A count that is not a number, is negative or is above `largestCount` gives no axis (nullopt).

/// An axis of a count known as a double, such as one that was computed from the caller's step.
std::optional<Axis> CountedAxis(double count, double start, double step, std::optional<double> end = std::nullopt);

/// Whole numbers from `from` to `to` in steps of 1.
std::optional<Axis> SizeAxis(double from, double to);

/// Whole numbers of a surface: in steps of 1, or of 2 from a span of 1,000 on. With steps of 2 and an odd span the last
/// one is intended to lie one above `to`.
std::optional<Axis> SurfaceSizeAxis(double from, double to);

/// From `start` to `end` in steps of `stepFraction` times the range. A range of no length has the one position
/// `start`; a fraction that is not above 0 has no axis.
std::optional<Axis> FractionAxis(double start, double end, double stepFraction, AxisEnd axisEnd);

/// From `start` to `end` in steps of `step`, ending at `end` exactly. A step that is not above 0 has no axis.
std::optional<Axis> StepAxis(double start, double end, double step);

/// `count` positions origin + step, origin + 2 step, ...; the origin itself is none of them. A step that is not above 0
/// has no axis.
std::optional<Axis> InnerAxis(double count, double origin, double step);

}  // namespace kelpower

#endif
