#include "solve/grid.h"

#include <algorithm>
#include <cmath>

namespace planner {
namespace {

constexpr double rounding = 1e-9;  // of a step, where a grid is to meet the end of its range

/// Surfaces need no more sizes than the eye can separate. Where both axes are of sizes, each is thinned sooner.
double Spacing(const Chart& chart, const Range& range) {
  if (chart.axes.size() < 2) return 1;
  const double span = range.to - range.from;
  const bool bothOfSizes = chart.axes[0].IsOfSizes() && chart.axes[1].IsOfSizes();
  if (!bothOfSizes) return span < 1000 ? 1 : 2;
  if (span < 250) return 1;
  return span < 1001 ? 5 : 10;
}

/// From one end to the other; the last stretch may be shorter than the step.
Numbers FromEndToEnd(const Range& range, double step) {
  Numbers points;
  const double steps = std::ceil((range.to - range.from) / step - rounding);
  for (double i = 0; i < steps; ++i) points.push_back(range.from + i * step);
  points.push_back(range.to);
  return points;
}

/// The points of a grid from the start of `scale` that lie within the range.
Numbers OnScale(const Range& range, const Range& scale, double step) {
  Numbers points;
  const double first = std::ceil((std::max(range.from, scale.from) - scale.from) / step - rounding);
  const double last = std::floor((std::min(range.to, scale.to) - scale.from) / step + rounding);
  for (double i = first; i <= last; ++i) points.push_back(i * step + scale.from);
  return points;
}

void LeaveOutEnds(Numbers& points, const Range& scale, ScaleEnds ends, double step) {
  const auto isLeftOut = [&](double point) {
    const bool isFirst = point - scale.from < rounding * step;
    const bool isLast = scale.to - point < rounding * step;
    return (isFirst && ends == ScaleEnds::None) || (isLast && ends != ScaleEnds::Both);
  };
  points.erase(std::remove_if(points.begin(), points.end(), isLeftOut), points.end());
}

Range Common(const Range& a, const Range& b) { return {std::max(a.from, b.from), std::min(a.to, b.to)}; }

/// The power with the design moved along the axes.
class Mover {
public:
  explicit Mover(PreparedQuestion& power) : power_(power), moved_(power.Design()) {}

  void Move(const Axis& axis, double at) { axis.Move(moved_, power_.Design(), at); }

  double Power() {
    const Row row = power_.Evaluate(moved_);
    if (row.status == RowStatus::Stopped) throw Stopped();
    return row.value;
  }

private:
  PreparedQuestion& power_;
  Inputs moved_;
};

}  // namespace

std::vector<AxisGrid> Grids(const Chart& chart, const std::vector<Range>& ranges, double step) {
  std::vector<AxisGrid> grids;
  for (std::size_t i = 0; i < chart.axes.size(); ++i) {
    grids.push_back({&chart.axes[i], ranges[i], step, Spacing(chart, ranges[i])});
  }
  return grids;
}

double PointCount(const AxisGrid& grid) {
  if (!grid.axis->IsOfSizes()) return 1 / grid.step + 1;
  return (grid.range.to - grid.range.from) / grid.spacing + 1;
}

Numbers Points(const AxisGrid& grid, const Inputs& design) {
  const Axis& axis = *grid.axis;
  if (axis.IsOfSizes()) return FromEndToEnd(grid.range, grid.spacing);
  const double width = grid.range.to - grid.range.from;
  if (!axis.scale) return FromEndToEnd(grid.range, grid.step * width);
  const Range scale = axis.scale(design);
  const Range drawn = Common(grid.range, scale);
  if (!(drawn.from < drawn.to)) return {};
  const double step = grid.step * (axis.stepIsOfScale ? scale.to - scale.from : width);
  Numbers points = axis.stepIsOfScale ? OnScale(drawn, scale, step) : OnScale(drawn, grid.range, step);
  LeaveOutEnds(points, scale, axis.scaleEnds, step);
  return points;
}

Series ComputeSeries(PreparedQuestion& power, const std::vector<AxisGrid>& grids) {
  const bool isSurface = grids.size() > 1;
  Series series{Points(grids[0], power.Design()), isSurface ? Points(grids[1], power.Design()) : Numbers{}, {}};
  series.power.reserve(series.x.size() * (isSurface ? series.y.size() : 1));
  Mover mover(power);
  for (double x : series.x) {
    mover.Move(*grids[0].axis, x);
    if (!isSurface) series.power.push_back(mover.Power());
    for (double y : series.y) {
      mover.Move(*grids[1].axis, y);
      series.power.push_back(mover.Power());
    }
  }
  return series;
}

}  // namespace planner
