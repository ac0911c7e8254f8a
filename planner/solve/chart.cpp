#include "solve/chart.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "model/problem.h"
#include "solve/checks.h"
#include "solve/choose_route.h"
#include "solve/grid.h"
#include "solve/make_inputs.h"
#include "solve/prepared_question.h"

namespace planner {
namespace {

// More points than any screen shows. The limit keeps a slip of the finger from computing for hours.
constexpr double mostPoints = 1e6;
constexpr double largestUsualTotal = 1e5;

// Steps of an exact test take a few nanoseconds each.
constexpr double mostSteps = 5e9;

constexpr double usualStep = 0.01;
const Limits stepLimits{0.001, 1, true, true, false};

const Names askers{"power", "interval", "half-width"};

std::vector<const Chart*> ChartsNamed(const Test& test, const std::string& name) {
  if (test.charts.empty()) throw InputError({.code = Code::NoCharts, .words = {test.name}});
  std::vector<const Chart*> charts;
  for (const Chart& chart : test.charts) {
    if (chart.name == name) charts.push_back(&chart);
  }
  if (!charts.empty()) return charts;
  std::vector<Choice> names;
  for (const std::string& known : ChartNames(test)) names.push_back({known, 0, ""});
  throw InputError(
      {.code = Code::NotAllowed, .inputs = {"chart"}, .values = {name}, .allowed = OneOf("chart", "", "", names)});
}

bool AnyTakes(const std::vector<const Chart*>& charts, const Names& names) {
  return std::any_of(charts.begin(), charts.end(), [&](const Chart* chart) {
    return std::all_of(names.begin(), names.end(), [&](Name name) { return chart->Takes(name); });
  });
}

void RejectWhatNoneTakes(const std::vector<const Chart*>& charts, const Names& given) {
  for (Name name : given) {
    if (AnyTakes(charts, {name})) continue;
    if (name == Name("power") && !Contains(given, "n")) {
      throw InputError({.code = Code::ChartNeedsSizes, .inputs = {"chart", "n", "power"}});
    }
    const Code code = Contains(askers, name) ? Code::ChartOfDesign : Code::ChartWithoutUse;
    throw InputError({.code = code, .inputs = Texts({name, "chart"}), .words = {charts.front()->name}});
  }
  for (std::size_t i = 0; i < given.size(); ++i) {
    for (std::size_t j = i + 1; j < given.size(); ++j) {
      if (AnyTakes(charts, {given[i], given[j]})) continue;
      throw InputError({.code = Code::Exclusive, .inputs = Texts({given[i], given[j]})});
    }
  }
}

const Chart& ChooseChart(const std::vector<const Chart*>& charts, const Names& given) {
  RejectWhatNoneTakes(charts, given);
  Problem incomplete{.code = Code::ChartIncomplete, .inputs = {"chart"}, .words = {charts.front()->name}};
  for (const Chart* chart : charts) {
    const auto takes = [&](Name name) { return chart->Takes(name); };
    if (!std::all_of(given.begin(), given.end(), takes)) continue;
    Names missing;
    std::copy_if(chart->needs.begin(), chart->needs.end(), std::back_inserter(missing),
                 [&](Name need) { return !Contains(given, need); });
    if (missing.empty()) return *chart;
    incomplete.missing.push_back(std::move(missing));
  }
  throw InputError(std::move(incomplete));
}

void CheckCount(const Chart& chart, const std::string& name, const Numbers& ends) {
  if (ends.size() == chart.axes.size()) return;
  throw InputError({.code = Code::ChartEndsCount,
                    .inputs = {name, "chart"},
                    .values = {ends, static_cast<double>(chart.axes.size())},
                    .words = {chart.name}});
}

void CheckRequest(const Chart& chart, const ChartRequest& request) {
  if (request.from.empty() != request.to.empty()) {
    throw InputError({.code = Code::ChartEndMissing, .inputs = {"from", "to"}});
  }
  if (!request.from.empty()) {
    CheckCount(chart, "from", request.from);
    CheckCount(chart, "to", request.to);
  }
  if (!request.step) return;
  const bool onlySizes =
      std::all_of(chart.axes.begin(), chart.axes.end(), [](const Axis& axis) { return axis.IsOfSizes(); });
  if (onlySizes) {
    throw InputError({.code = Code::ChartStepUseless, .inputs = {"step", "chart"}, .words = {chart.name}});
  }
  if (stepLimits.Allow(*request.step)) return;
  throw InputError(
      {.code = Code::ChartStepNotAllowed, .inputs = {"step"}, .values = {*request.step}, .limits = {stepLimits}});
}

/// A total size must leave the groups something to estimate the standard deviation from. Below that there is no power.
Limits EndLimits(const Axis& axis, const Inputs& inputs) {
  Limits limits = axis.limits;
  if (axis.isTotal) limits.low = std::max(limits.low, inputs.Groups() + 1.0);
  return limits;
}

void CheckEnds(const Axis& axis, const Inputs& inputs, const Range& range) {
  const Limits limits = EndLimits(axis, inputs);
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

[[noreturn]] void RejectUnknownRange(const Chart& chart) {
  throw InputError({.code = Code::ChartRangeUnknown, .inputs = {"chart", "from", "to"}, .words = {chart.name}});
}

Range UsualRange(const Chart& chart, const Axis& axis, const Inputs& inputs, double power) {
  if (axis.IsOfSizes() && axis.PlaceOf(inputs) > largestUsualTotal) {
    throw InputError({.code = Code::ChartSizesUnknown, .inputs = {"from", "to"}, .values = {largestUsualTotal}});
  }
  const Range range = axis.usual(inputs, power);
  if (range.from < range.to && std::isfinite(range.to - range.from)) return range;
  RejectUnknownRange(chart);
}

std::vector<Range> RangesOf(const Chart& chart, const ChartRequest& request, const Inputs& inputs, double power) {
  std::vector<Range> ranges;
  for (std::size_t i = 0; i < chart.axes.size(); ++i) {
    const Axis& axis = chart.axes[i];
    if (request.from.empty()) {
      ranges.push_back(UsualRange(chart, axis, inputs, power));
    } else {
      ranges.push_back({request.from[i], request.to[i]});
      CheckEnds(axis, inputs, ranges.back());
    }
  }
  return ranges;
}

/// Says what the axes allow.
[[noreturn]] void RejectRanges(const Chart& chart) {
  Problem problem{.code = Code::ChartEmpty, .inputs = {"from", "to"}};
  for (const Axis& axis : chart.axes) {
    problem.words.push_back(axis.title);
    problem.limits.push_back(axis.limits);
  }
  throw InputError(std::move(problem));
}

void CheckPoints(const Chart& chart, const std::vector<AxisGrid>& grids, const Inputs& design) {
  double points = 1;
  bool anyOfSizes = false;
  Inputs middle = design;
  for (const AxisGrid& grid : grids) {
    points *= PointCount(grid);
    anyOfSizes = anyOfSizes || grid.axis->IsOfSizes();
    grid.axis->Move(middle, design, (grid.range.from + grid.range.to) / 2);
  }
  if (points > mostPoints) {
    throw InputError({.code = Code::ChartTooLarge,
                      .inputs = anyOfSizes ? std::vector<std::string>{"from", "to"} : std::vector<std::string>{"step"},
                      .values = {mostPoints}});
  }
  for (const AxisGrid& grid : grids) {
    if (!grid.axis->refuse) continue;
    std::optional<Problem> problem = grid.axis->refuse(design, grid.range);
    if (!problem) continue;
    if (problem->code == Code::ChartEmpty) RejectRanges(chart);
    throw InputError(std::move(*problem));
  }
  if (chart.steps && points * chart.steps(middle) > mostSteps) {
    throw InputError({.code = Code::ChartTooSlow, .inputs = {"step", "from", "to"}});
  }
}

/// A single point, and points without a power, make no chart.
bool CanBeDrawn(const Series& series) {
  const auto isPresent = [](double power) { return !std::isnan(power); };
  return series.x.size() > 1 && std::any_of(series.power.begin(), series.power.end(), isPresent);
}

[[noreturn]] void RejectEmpty(const Chart& chart, const ChartRequest& request, const Series& series) {
  if (request.from.empty()) RejectUnknownRange(chart);
  if (!series.power.empty()) throw InputError({.code = Code::ChartWithoutPower, .inputs = {"from", "to"}});
  RejectRanges(chart);
}

/// Where the usual step would draw something, the step is at fault, and otherwise the range.
void RejectLargeStep(PreparedQuestion& power, std::vector<AxisGrid> grids, const ChartRequest& request) {
  if (!request.step) return;
  for (AxisGrid& grid : grids) grid.step = usualStep;
  if (!CanBeDrawn(ComputeSeries(power, grids))) return;
  throw InputError({.code = Code::ChartStepTooLarge, .inputs = {"step"}, .values = {*request.step}});
}

bool Within(const Numbers& values, double value) {
  return !values.empty() && values.front() <= value && value <= values.back();
}

/// The design's place on the chart and its power, as the question about the power answers it.
std::optional<DesignMark> MarkOf(const Chart& chart, const Series& series, const Inputs& inputs, const Row& power) {
  DesignMark mark{{}, power.value};
  for (const Axis& axis : chart.axes) mark.at.push_back(axis.PlaceOf(inputs));
  if (power.status != RowStatus::Answered) return std::nullopt;
  if (!Within(series.x, mark.at[0])) return std::nullopt;
  if (mark.at.size() > 1 && !Within(series.y, mark.at[1])) return std::nullopt;
  return mark;
}

}  // namespace

std::vector<std::string> ChartNames(const Test& test) {
  std::vector<std::string> names;
  for (const Chart& chart : test.charts) {
    if (std::find(names.begin(), names.end(), chart.name) == names.end()) names.push_back(chart.name);
  }
  return names;
}

ChartData ComputeChart(const Test& test, const ChartRequest& request, const InputValues& values, StopRequest* stop) {
  CheckValues(test, values);
  const Chart& chart = ChooseChart(ChartsNamed(test, request.name), GivenNames(test, values));
  CheckConditions(test, MakeInputs(test, values, nullptr));
  PreparedQuestion power(test, values, stop);
  const Inputs& design = power.Design();
  CheckRequest(chart, request);
  const Row designPower = power.Evaluate(design);
  if (designPower.status == RowStatus::Stopped) throw Stopped();
  const std::vector<Range> ranges = RangesOf(chart, request, design, designPower.value);
  const std::vector<AxisGrid> grids = Grids(chart, ranges, request.step.value_or(usualStep));
  CheckPoints(chart, grids, design);
  ChartData data{&test, &chart, power.ChosenRoute().ExportFor(design), ComputeSeries(power, grids), std::nullopt};
  if (!CanBeDrawn(data.series)) {
    RejectLargeStep(power, grids, request);
    RejectEmpty(chart, request, data.series);
  }
  data.mark = MarkOf(chart, data.series, design, designPower);
  return data;
}

}  // namespace planner
