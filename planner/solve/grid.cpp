#include "solve/grid.h"

#include <algorithm>
#include <cmath>

#include "solve/axes.h"

namespace planner {
namespace {

constexpr double rounding = 1e-9;  // of a step, where a grid is to meet the end of its range

/// 1, 2, 5, 10, 20, ...: the first that is at least the number.
double RoundAtLeast(double number) {
  double power = 1;
  while (10 * power < number) power *= 10;
  for (double multiple : {1.0, 2.0, 5.0}) {
    if (multiple * power >= number) return multiple * power;
  }
  return 10 * power;
}

/// From one end to the other; the last stretch may be shorter than the step.
Numbers FromEndToEnd(const Range& range, double step) {
  Numbers points;
  const double steps = std::ceil((range.to - range.from) / step - rounding);
  for (double i = 0; i < steps; ++i) points.push_back(range.from + i * step);
  points.push_back(range.to);
  // A zero that rounding misses, or that has a sign.
  for (double& point : points) {
    if (std::abs(point) < rounding * step) point = 0;
  }
  return points;
}

Numbers EvenPoints(const AxisGrid& grid) {
  const Limits& limits = grid.axis->limits;
  const double width = grid.range.to - grid.range.from;
  Numbers points = FromEndToEnd(grid.range, grid.step * width);
  const double slack = rounding * grid.step * width;
  const auto isOutside = [&](double point) {
    const bool isBelow = point < grid.allowed.from - slack || point > grid.allowed.to + slack;
    const bool isEnd = std::abs(point - grid.allowed.from) <= slack || std::abs(point - grid.allowed.to) <= slack;
    return isBelow || (isEnd && (grid.endsExcluded || !limits.Allow(point)));
  };
  points.erase(std::remove_if(points.begin(), points.end(), isOutside), points.end());
  return points;
}

/// From one end to the other, both included, in steps that meet `through`.
Numbers WholePoints(const Range& range, double spacing, double through) {
  Numbers points{range.from};
  const double offset = std::fmod(through - range.from, spacing);
  for (double point = range.from + (offset > 0 ? offset : offset + spacing); point < range.to; point += spacing) {
    points.push_back(point);
  }
  if (range.to > range.from) points.push_back(range.to);
  return points;
}

Numbers TotalPoints(const AxisGrid& grid, const Inputs& design) {
  const double smallest = design.List("n")[SmallestGroup(design)];
  const double share = smallest / grid.axis->design(design);
  const Range sizes{std::max(1.0, std::floor(grid.range.from * share)), std::ceil(grid.range.to * share) + 1};
  Numbers points;
  for (double size : WholePoints(sizes, std::max(1.0, std::round(grid.spacing * share)), smallest)) {
    const double total = TotalOf(design, size);
    if (total >= grid.range.from && total <= grid.range.to) points.push_back(total);
  }
  return points;
}

}  // namespace

double SpacingOf(const Range& range, bool isUsual, bool isSurface) {
  const double span = range.to - range.from;
  if (isUsual) return RoundAtLeast(span / (isSurface ? 150 : 400));
  constexpr double mostByOnes = 1000;
  return isSurface && span >= mostByOnes ? RoundAtLeast(span / (mostByOnes / 2)) : 1;
}

double PointCount(const AxisGrid& grid) {
  if (grid.axis->spacing == Spacing::Even) return 1 / grid.step + 1;
  return (grid.range.to - grid.range.from) / grid.spacing + 1;
}

Numbers Points(const AxisGrid& grid, const Inputs& design) {
  switch (grid.axis->spacing) {
    case Spacing::Even: return EvenPoints(grid);
    case Spacing::Whole: return WholePoints(grid.range, grid.spacing, grid.axis->design(design));
    case Spacing::Totals: return TotalPoints(grid, design);
  }
  return {};
}

}  // namespace planner
