#include "solve/chart.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "model/problem.h"
#include "solve/axes.h"
#include "solve/chart_design.h"
#include "solve/choose_route.h"
#include "solve/grid.h"
#include "solve/usual_range.h"

namespace planner {
namespace {

// More points than any screen shows. The limit keeps a slip of the finger from computing for hours.
constexpr double mostPoints = 1e6;

// Steps of an exact test take a few nanoseconds each.
constexpr double mostSteps = 5e9;

constexpr double stepOfCurve = 0.005;
constexpr double stepOfSurface = 0.01;
const Limits stepLimits{0.001, 1, true, true, false};

std::vector<Axis> ChooseAxes(const Test& test, const ChartRequest& request, const ChartDesign& design) {
  const std::vector<Axis> all = AxesOf(test, design.question.ChosenRoute(), design.Design());
  std::vector<Axis> axes = AxesNamed(request.name, all);
  if (!axes.empty()) return axes;
  Problem problem{.code = Code::ChartUnknown, .inputs = {"chart"}, .values = {request.name}};
  for (const Axis& axis : all) problem.words.push_back(axis.name);
  throw InputError(std::move(problem));
}

std::string NameOf(const Alternatives& alternatives) { return std::string(alternatives.parameter->name.Text()); }

bool IsVaried(const std::vector<Axis>& axes, std::string_view input) {
  return std::any_of(axes.begin(), axes.end(), [&](const Axis& axis) {
    const std::vector<std::string> needs = Texts(axis.needs);
    return axis.name == input || (axis.isOfSizes && input == "n") || (needs.size() == 1 && needs.front() == input);
  });
}

void CheckQuantity(const ChartRequest& request, const std::vector<Axis>& axes, Quantity quantity) {
  if (axes.size() == 1) return;
  if (quantity != Quantity::Power) {
    throw InputError({.code = Code::ChartOneAxis, .inputs = {"chart"}, .words = {request.name}});
  }
  if (request.alternatives) {
    throw InputError({.code = Code::ChartOneDesign, .inputs = {NameOf(*request.alternatives), "chart"}});
  }
}

void CheckCount(const ChartRequest& request, std::size_t axes, const std::string& name, const Numbers& ends) {
  if (ends.size() == axes) return;
  throw InputError({.code = Code::ChartEndsCount,
                    .inputs = {name, "chart"},
                    .values = {ends, static_cast<double>(axes)},
                    .words = {request.name}});
}

void CheckRequest(const ChartRequest& request, const std::vector<Axis>& axes) {
  if (request.alternatives && IsVaried(axes, NameOf(*request.alternatives))) {
    throw InputError({.code = Code::ChartVariesAlternatives, .inputs = {NameOf(*request.alternatives), "chart"}});
  }
  if (request.from.empty() != request.to.empty()) {
    throw InputError({.code = Code::ChartEndMissing, .inputs = {"from", "to"}});
  }
  if (!request.from.empty()) {
    CheckCount(request, axes.size(), "from", request.from);
    CheckCount(request, axes.size(), "to", request.to);
  }
  if (!request.step) return;
  if (std::none_of(axes.begin(), axes.end(), [](const Axis& axis) { return axis.spacing == Spacing::Even; })) {
    throw InputError({.code = Code::ChartStepUseless, .inputs = {"step", "chart"}, .words = {request.name}});
  }
  if (stepLimits.Allow(*request.step)) return;
  throw InputError(
      {.code = Code::ChartStepNotAllowed, .inputs = {"step"}, .values = {*request.step}, .limits = {stepLimits}});
}

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

double PointsOf(const std::vector<AxisGrid>& grids) {
  double points = 1;
  for (const AxisGrid& grid : grids) points *= PointCount(grid);
  return points;
}

/// The steps of all powers, by the sizes in the middle.
double StepsOf(const Test& test, const std::vector<AxisGrid>& grids, const Inputs& design) {
  if (!test.steps || !design.Has("n")) return 0;
  Inputs middle = design;
  for (const AxisGrid& grid : grids) {
    if (grid.axis->isOfSizes) grid.axis->vary(middle, design, std::round((grid.range.from + grid.range.to) / 2));
  }
  return PointsOf(grids) * test.steps(middle);
}

/// Powers that take long are asked at fewer points, unless the user says which.
void Thin(const Test& test, const ChartRequest& request, std::vector<AxisGrid>& grids, const Inputs& design) {
  constexpr double usualSteps = 3e8;
  constexpr double fewestPoints = 20;
  for (bool isThinned = true; isThinned && StepsOf(test, grids, design) > usualSteps;) {
    isThinned = false;
    for (AxisGrid& grid : grids) {
      if (PointCount(grid) < 2 * fewestPoints) continue;
      if (grid.axis->spacing == Spacing::Even ? request.step.has_value() : !request.from.empty()) continue;
      grid.step *= 2;
      grid.spacing *= 2;
      isThinned = true;
    }
  }
}

void CheckPoints(const Test& test, const std::vector<AxisGrid>& grids, const Inputs& design) {
  const double points = PointsOf(grids);
  const bool anyWhole =
      std::any_of(grids.begin(), grids.end(), [](const AxisGrid& grid) { return grid.axis->spacing != Spacing::Even; });
  if (points > mostPoints) {
    throw InputError({.code = Code::ChartTooLarge,
                      .inputs = anyWhole ? std::vector<std::string>{"from", "to"} : std::vector<std::string>{"step"},
                      .values = {mostPoints}});
  }
  if (StepsOf(test, grids, design) > mostSteps) {
    throw InputError({.code = Code::ChartTooSlow, .inputs = {"step", "from", "to"}});
  }
}

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

bool HasPoints(const std::vector<AxisGrid>& grids, const Inputs& design) {
  return std::all_of(grids.begin(), grids.end(), [&](const AxisGrid& grid) { return Points(grid, design).size() > 1; });
}

/// Tells a step at fault from a range at fault: the usual step would draw something.
void RejectWithoutPoints(std::vector<AxisGrid> grids, const ChartRequest& request, const Inputs& design) {
  if (HasPoints(grids, design)) return;
  for (AxisGrid& grid : grids) grid.step = stepOfSurface;
  if (request.step && HasPoints(grids, design)) {
    throw InputError({.code = Code::ChartStepTooLarge, .inputs = {"step"}, .values = {*request.step}});
  }
  Problem problem{.code = Code::ChartEmpty, .inputs = {"from", "to"}};
  for (const AxisGrid& grid : grids) {
    Limits limits = grid.axis->limits;
    limits.low = grid.allowed.from;
    limits.high = grid.allowed.to;
    problem.words.push_back(grid.axis->title);
    problem.limits.push_back(limits);
  }
  throw InputError(std::move(problem));
}

void RejectWithoutValues(const std::vector<ChartCurve>& curves) {
  for (const ChartCurve& curve : curves) {
    const Numbers& values = curve.series.value;
    if (std::any_of(values.begin(), values.end(), [](double value) { return !std::isnan(value); })) return;
  }
  throw InputError({.code = Code::ChartWithoutPower, .inputs = {"from", "to"}});
}

bool Within(const Numbers& values, double value) {
  return !values.empty() && values.front() <= value && value <= values.back();
}

/// The design's place on the chart and its value, as the question about it answers.
std::optional<DesignMark> MarkOf(const std::vector<Axis>& axes, const Series& series, const ChartDesign& design) {
  if (std::isnan(design.value)) return std::nullopt;
  DesignMark mark{{}, design.value};
  for (const Axis& axis : axes) mark.at.push_back(axis.design(design.Design()));
  if (!Within(series.x, mark.at[0])) return std::nullopt;
  if (mark.at.size() > 1 && !Within(series.y, mark.at[1])) return std::nullopt;
  return mark;
}

}  // namespace

ChartData ComputeChart(const Test& test, const ChartRequest& request, const InputValues& values, StopRequest* stop) {
  std::vector<ChartDesign> designs = DesignsOf(test, request, values, stop);
  const std::vector<Axis> axes = ChooseAxes(test, request, designs.front());
  CheckQuantity(request, axes, designs.front().quantity);
  CheckRequest(request, axes);
  std::vector<AxisGrid> grids = GridsOf(axes, request, designs);
  const Inputs first = designs.front().Design();
  Thin(test, request, grids, first);
  CheckPoints(test, grids, first);
  RejectWithoutPoints(grids, request, first);
  ChartData data{&test, request.name, axes, designs.front().quantity, std::nullopt, {}};
  if (request.alternatives) data.varied = request.alternatives->parameter->name;
  for (ChartDesign& design : designs) {
    Series series = SeriesOf(axes, grids, design, first);
    std::optional<DesignMark> mark = MarkOf(axes, series, design);
    data.curves.push_back(
        {design.alternative, design.Design(), &design.question.ChosenRoute(), std::move(series), std::move(mark)});
  }
  RejectWithoutValues(data.curves);
  return data;
}

}  // namespace planner
