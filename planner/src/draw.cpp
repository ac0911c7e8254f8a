#include "planner/draw.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "checks.h"
#include "choose_route.h"
#include "planner/error.h"
#include "planner/solve.h"

namespace planner {
namespace {

// More points than any screen shows; keeps a slip of the finger from computing for hours.
constexpr double mostPoints = 1e6;
constexpr double largestUsualTotal = 1e5;

constexpr double usualStep = 0.01;
const Limits stepLimits{0.001, 1, true, true, false};

const std::vector<std::string> askers{"power", "interval", "half-width"};

std::string Joined(const std::vector<std::string>& words, const std::string& last) {
  std::string text;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (i > 0) text += i + 1 == words.size() ? last : ", ";
    text += words[i];
  }
  return text;
}

std::vector<const Chart*> ChartsNamed(const Test& test, const std::string& name) {
  if (test.charts.empty()) throw InputError(fmt::format("{} has no charts.", test.name));
  std::vector<const Chart*> charts;
  for (const Chart& chart : test.charts) {
    if (chart.name == name) charts.push_back(&chart);
  }
  if (charts.empty()) {
    throw InputError(fmt::format("--chart is \"{}\", but must be {}.", name, Joined(ChartNames(test), " or ")));
  }
  return charts;
}

bool Takes(const Chart& chart, const std::string& name) {
  return name == "alpha" || Contains(chart.needs, name) || Contains(chart.accepts, name);
}

bool AnyTakes(const std::vector<const Chart*>& charts, const Names& names) {
  return std::any_of(charts.begin(), charts.end(), [&](const Chart* chart) {
    return std::all_of(names.begin(), names.end(), [&](const std::string& name) { return Takes(*chart, name); });
  });
}

void RejectWhatNoneTakes(const std::vector<const Chart*>& charts, const Names& given) {
  const std::string& chart = charts.front()->name;
  for (const std::string& name : given) {
    if (AnyTakes(charts, {name})) continue;
    if (name == "power" && !Contains(given, "n")) {
      throw InputError("--chart draws the power of a design: give its sizes with --n in place of --power.");
    }
    if (Contains(askers, name)) {
      throw InputError(fmt::format("--chart draws the power of a design, so --{} cannot be given as well.", name));
    }
    throw InputError(fmt::format("--{} has no use with --chart {}.", name, chart));
  }
  for (std::size_t i = 0; i < given.size(); ++i) {
    for (std::size_t j = i + 1; j < given.size(); ++j) {
      if (AnyTakes(charts, {given[i], given[j]})) continue;
      throw InputError(fmt::format("--{} and --{} exclude each other.", given[i], given[j]));
    }
  }
}

const Chart& ChooseChart(const std::vector<const Chart*>& charts, const Names& given) {
  RejectWhatNoneTakes(charts, given);
  Names ways;
  for (const Chart* chart : charts) {
    const auto takes = [&](const std::string& name) { return Takes(*chart, name); };
    if (!std::all_of(given.begin(), given.end(), takes)) continue;
    Names missing;
    for (const std::string& need : chart->needs) {
      if (!Contains(given, need)) missing.push_back("--" + need);
    }
    if (missing.empty()) return *chart;
    ways.push_back(Joined(missing, " and "));
  }
  throw InputError(fmt::format("Also give {} for --chart {}.", Joined(ways, ", or "), charts.front()->name));
}

/// A total size must leave the groups something to estimate the standard deviation from; below, the library's power
/// has no meaning.
Limits EndLimits(const Axis& axis, const Inputs& inputs) {
  Limits limits = axis.limits;
  if (axis.isTotal) limits.low = std::max(limits.low, inputs.Groups() + 1.0);
  return limits;
}

void CheckEnds(const Axis& axis, const Limits& limits, double from, double to) {
  for (const auto& [name, end] : {std::pair("from", from), std::pair("to", to)}) {
    if (limits.Allow(end)) continue;
    throw InputError(fmt::format("--{} is {}, but of {} must be {}.", name, Shortest(end), axis.title, limits.Text()));
  }
  if (from >= to) {
    throw InputError(fmt::format("--from is {}, but must be below --to, which is {}.", Shortest(from), Shortest(to)));
  }
}

void CheckCount(const Chart& chart, const char* name, const Numbers& ends) {
  if (ends.size() == chart.axes.size()) return;
  const std::string allowed = chart.axes.size() == 1 ? "a number" : "two numbers, one for each axis";
  throw InputError(fmt::format("--{} is {}, but for --chart {} must be {}.", name, Listed(ends), chart.name, allowed));
}

Range UsualRange(const Axis& axis, const Inputs& inputs) {
  if (axis.limits.whole && axis.design(inputs) > largestUsualTotal) {
    throw InputError(fmt::format("A design of more than {} observations has no usual range: also give --from and --to.",
                                 Shortest(largestUsualTotal)));
  }
  return axis.usual ? axis.usual(inputs) : Range{};
}

Range RangeOf(const Chart& chart, std::size_t axis, const ChartRequest& request, const Inputs& inputs) {
  if (axis >= chart.axes.size()) return {};
  if (request.from.empty()) return UsualRange(chart.axes[axis], inputs);
  CheckEnds(chart.axes[axis], EndLimits(chart.axes[axis], inputs), request.from[axis], request.to[axis]);
  return {request.from[axis], request.to[axis]};
}

bool IsOfSizes(const Axis& axis) { return axis.limits.whole; }

void CheckRequest(const Chart& chart, const ChartRequest& request) {
  if (request.from.empty() != request.to.empty()) {
    throw InputError("--from and --to go together: give both or neither.");
  }
  if (!request.from.empty()) {
    CheckCount(chart, "from", request.from);
    CheckCount(chart, "to", request.to);
  }
  if (!request.step) return;
  if (std::all_of(chart.axes.begin(), chart.axes.end(), IsOfSizes)) {
    throw InputError(fmt::format("--step has no use with --chart {}: sizes go by ones.", chart.name));
  }
  if (!stepLimits.Allow(*request.step)) {
    throw InputError(
        fmt::format("--step is {}, but must be {}: a share of the range.", Shortest(*request.step), stepLimits.Text()));
  }
}

double Points(const Axis& axis, const Range& range, double step) {
  if (!IsOfSizes(axis)) return 1 / step + 1;
  const double spacing = axis.spacing ? axis.spacing(range) : 1;
  return (range.to - range.from) / spacing + 1;
}

void CheckPoints(const Chart& chart, const Ranges& ranges) {
  double points = Points(chart.axes[0], ranges.x, ranges.step);
  if (chart.axes.size() > 1) points *= Points(chart.axes[1], ranges.y, ranges.step);
  if (points <= mostPoints) return;
  if (std::none_of(chart.axes.begin(), chart.axes.end(), IsOfSizes)) {
    throw InputError(fmt::format("The grid has more than {} points: give a larger --step.", Shortest(mostPoints)));
  }
  throw InputError(
      fmt::format("The range has more than {} points: bring --from and --to closer together.", Shortest(mostPoints)));
}

Ranges RangesOf(const Chart& chart, const ChartRequest& request, const Inputs& inputs) {
  CheckRequest(chart, request);
  Ranges ranges{RangeOf(chart, 0, request, inputs), RangeOf(chart, 1, request, inputs),
                request.step.value_or(usualStep)};
  CheckPoints(chart, ranges);
  return ranges;
}

/// A single point, and points without a power, make no chart.
bool CanBeDrawn(const Series& series) {
  const auto isPresent = [](double power) { return !std::isnan(power); };
  return series.x.size() > 1 && std::any_of(series.power.begin(), series.power.end(), isPresent);
}

/// Tells a step at fault from a range at fault: the usual step would draw something.
void RejectLargeStep(const Chart& chart, const ChartRequest& request, const Inputs& inputs, Ranges ranges) {
  if (!request.step) return;
  ranges.step = usualStep;
  if (!CanBeDrawn(chart.call(inputs, ranges))) return;
  throw InputError(fmt::format("--step is {}, but leaves fewer than two points to draw: give a smaller one.",
                               Shortest(*request.step)));
}

[[noreturn]] void RejectEmpty(const Chart& chart, const ChartRequest& request, const Series& series) {
  if (request.from.empty()) {
    throw InputError(
        fmt::format("--chart {} has no usual range for these inputs: also give --from and --to.", chart.name));
  }
  if (!series.power.empty()) throw InputError("The test has no power anywhere between --from and --to.");
  std::vector<std::string> allowed;
  for (const Axis& axis : chart.axes) allowed.push_back(axis.title + " " + axis.limits.Text());
  throw InputError(fmt::format("--from and --to leave nothing to draw; allowed are: {}.", Joined(allowed, " and ")));
}

bool Within(const Numbers& values, double value) {
  return !values.empty() && values.front() <= value && value <= values.back();
}

/// The design's place on the chart and its power, as the question about the power answers it.
std::optional<DesignMark> MarkOf(const Test& test, const Chart& chart, const Series& series, const Inputs& inputs,
                                 const Given& given) {
  DesignMark mark{};
  for (const Axis& axis : chart.axes) mark.at.push_back(axis.design(inputs));
  if (!Within(series.x, mark.at[0])) return std::nullopt;
  if (mark.at.size() > 1 && !Within(series.y, mark.at[1])) return std::nullopt;
  try {
    const Report report = Solve(test, given);
    mark.power = std::get<double>(report.results.back().value);
  } catch (const NoSolution&) {
    return std::nullopt;
  }
  return mark;
}

}  // namespace

std::vector<std::string> ChartNames(const Test& test) {
  Names names;
  for (const Chart& chart : test.charts) {
    if (!Contains(names, chart.name)) names.push_back(chart.name);
  }
  return names;
}

Picture Draw(const Test& test, const ChartRequest& request, const Given& given) {
  CheckValues(test, given);
  const Chart& chart = ChooseChart(ChartsNamed(test, request.name), GivenNames(given));
  const Inputs inputs(test, given, nullptr);
  CheckConditions(test, inputs);
  const Ranges ranges = RangesOf(chart, request, inputs);
  Picture picture{&test, &chart, chart.call(inputs, ranges), std::nullopt};
  if (!CanBeDrawn(picture.series)) {
    RejectLargeStep(chart, request, inputs, ranges);
    RejectEmpty(chart, request, picture.series);
  }
  picture.mark = MarkOf(test, chart, picture.series, inputs, given);
  return picture;
}

}  // namespace planner
