#include <algorithm>
#include <cmath>
#include <utility>

#include "model/problem.h"
#include "solve/chart_parts.h"
#include "solve/usual_range.h"

namespace planner {
namespace {

void CheckEnds(const Axis& axis, const Range& range) {
  // An end that is no point itself may still end an axis.
  Limits limits = axis.limits;
  limits.lowAllowed = limits.highAllowed = true;
  for (const auto& [name, end] : {std::pair("from", range.from), std::pair("to", range.to)}) {
    if (limits.Allow(end)) continue;
    throw InputError({.code = Code::ChartEndNotAllowed,
                      .inputs = {name},
                      .values = {end},
                      .words = {axis.title},
                      .limits = {limits}});
  }
  if (range.from < range.to) return;
  throw InputError({.code = Code::ChartEndsDescend, .inputs = {"from", "to"}, .values = {range.from, range.to}});
}

// Powers that take longer are not searched for the range of an axis.
constexpr double mostStepsOfSearch = 1e7;

Range UsualRangeOf(const Axis& axis, ChartDesign& design, double high) {
  const Inputs planned = design.Design();
  Inputs moved = planned;
  const auto steps = design.question.AskedTest().steps;
  const auto valueAt = [&](double at) {
    axis.vary(moved, planned, axis.spacing == Spacing::Even ? at : std::round(at));
    if (steps && moved.Has("n") && steps(moved) > mostStepsOfSearch) return std::nan("");
    return design.ValueOf(moved);
  };
  return UsualRange({.axis = &axis,
                     .allowed = AllowedOn(axis, planned),
                     .design = axis.design(planned),
                     .quantity = design.quantity,
                     .alpha = planned.Alpha(),
                     .high = high},
                    valueAt);
}

/// A range that serves all designs.
Range UsualRangeOf(const Axis& axis, const ChartRequest& request, std::vector<ChartDesign>& designs) {
  Range common{INFINITY, -INFINITY};
  // Of several curves the flattest would leave little room to the others.
  const double high = designs.size() > 1 ? 0.9 : 0.99;
  for (ChartDesign& design : designs) {
    const Range range = UsualRangeOf(axis, design, high);
    common = {std::min(common.from, range.from), std::max(common.to, range.to)};
  }
  if (common.from < common.to && std::isfinite(common.to - common.from)) return common;
  throw InputError({.code = Code::ChartRangeUnknown, .inputs = {"chart", "from", "to"}, .words = {request.name}});
}

/// What two ranges share; the first where that is nothing.
Range Common(const Range& range, const Range& other) {
  const Range common{std::max(range.from, other.from), std::min(range.to, other.to)};
  return common.from < common.to ? common : range;
}

}  // namespace

std::vector<AxisGrid> GridsOf(const std::vector<Axis>& axes, const ChartRequest& request,
                              std::vector<ChartDesign>& designs) {
  const bool isUsual = request.from.empty();
  const bool isSurface = axes.size() > 1;
  std::vector<AxisGrid> grids;
  for (std::size_t i = 0; i < axes.size(); ++i) {
    const Axis& axis = axes[i];
    if (!isUsual) CheckEnds(axis, {request.from[i], request.to[i]});
    const Range allowed = AllowedOn(axis, designs.front().Design());
    const Range range =
        isUsual ? UsualRangeOf(axis, request, designs) : Common({request.from[i], request.to[i]}, allowed);
    grids.push_back({.axis = &axis,
                     .range = range,
                     .allowed = allowed,
                     .step = request.step.value_or(isSurface ? stepOfSurface : stepOfCurve),
                     .spacing = SpacingOf(range, isUsual, isSurface),
                     .endsExcluded = axis.scale != nullptr});
  }
  return grids;
}

}  // namespace planner
