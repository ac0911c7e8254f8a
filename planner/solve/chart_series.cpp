#include <algorithm>
#include <cmath>

#include "model/problem.h"
#include "solve/chart_parts.h"

namespace planner {
namespace {

/// The values over the points of one axis.
Numbers ValuesAlong(const Axis& axis, const Numbers& points, ChartDesign& design) {
  const Inputs planned = design.Design();
  Inputs moved = planned;
  Numbers values;
  values.reserve(points.size());
  for (double at : points) {
    axis.vary(moved, planned, at);
    values.push_back(design.ValueOf(moved));
  }
  return values;
}

/// The values of a surface. The design is moved along the sizes first, since the critical values of a test depend on
/// them alone: neighbours share them.
void FillSurface(const std::vector<Axis>& axes, Series& series, ChartDesign& design) {
  const bool isTurned = axes[1].isOfSizes && !axes[0].isOfSizes;
  const Axis& outer = axes[isTurned ? 1 : 0];
  const Axis& inner = axes[isTurned ? 0 : 1];
  const Numbers& outerPoints = isTurned ? series.y : series.x;
  const Numbers& innerPoints = isTurned ? series.x : series.y;
  series.value.assign(series.x.size() * series.y.size(), 0);
  design.question.ExpectSharedSizes();
  const Inputs planned = design.Design();
  Inputs base = planned;
  Inputs moved = planned;
  for (std::size_t i = 0; i < outerPoints.size(); ++i) {
    outer.vary(base, planned, outerPoints[i]);
    moved = base;
    for (std::size_t j = 0; j < innerPoints.size(); ++j) {
      inner.vary(moved, base, innerPoints[j]);
      series.value[isTurned ? j * series.y.size() + i : i * series.y.size() + j] = design.ValueOf(moved);
    }
  }
}

bool Within(const Numbers& values, double value) {
  return !values.empty() && values.front() <= value && value <= values.back();
}

}  // namespace

Series SeriesOf(const std::vector<Axis>& axes, const std::vector<AxisGrid>& grids, ChartDesign& design,
                const Inputs& first) {
  Series series{Points(grids[0], first), {}, {}};
  if (axes.size() == 1) {
    series.value = ValuesAlong(axes[0], series.x, design);
  } else {
    series.y = Points(grids[1], first);
    FillSurface(axes, series, design);
  }
  return series;
}

void RejectWithoutValues(const std::vector<ChartCurve>& curves) {
  for (const ChartCurve& curve : curves) {
    const Numbers& values = curve.series.value;
    if (std::any_of(values.begin(), values.end(), [](double value) { return !std::isnan(value); })) return;
  }
  throw InputError({.code = Code::ChartWithoutPower, .inputs = {"from", "to"}});
}

std::optional<DesignMark> MarkOf(const std::vector<Axis>& axes, const Series& series, const ChartDesign& design) {
  if (std::isnan(design.value)) return std::nullopt;
  DesignMark mark{{}, design.value};
  for (const Axis& axis : axes) mark.at.push_back(axis.design(design.Design()));
  if (!Within(series.x, mark.at[0])) return std::nullopt;
  if (mark.at.size() > 1 && !Within(series.y, mark.at[1])) return std::nullopt;
  return mark;
}

}  // namespace planner
