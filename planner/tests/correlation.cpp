#include "correlation.h"

#include <algorithm>
#include <cmath>

#include "correlation_parameters.h"
#include "window.h"

namespace planner {
namespace {

using Names = std::vector<std::string>;

Names Joined(Names names, const Names& more) {
  names.insert(names.end(), more.begin(), more.end());
  return names;
}

/// The parameters of the effect, without and with the size.
Names Effect(const CorrelationKind& kind) { return Joined({"r"}, kind.needs); }
Names Design(const CorrelationKind& kind) { return Joined(Effect(kind), {"n"}); }

Names TestOptions(const CorrelationKind& kind) { return Joined({"null", "one-sided"}, kind.accepts); }

std::vector<Route> Routes(const CorrelationKind& kind) {
  const CorrelationCalls calls = kind.calls;
  const auto Rounded = [](double (*size)(const Inputs&)) {
    return [=](const Inputs& in) { return Numbers{std::ceil(size(in))}; };
  };
  const auto Single = [](double (*figure)(const Inputs&)) {
    return [=](const Inputs& in) { return Numbers{figure(in)}; };
  };
  const Names effect = Effect(kind);
  const Names design = Design(kind);
  const Names options = TestOptions(kind);
  return {
      {Question::Power, design, options, "PowerbyOneSamp" + kind.exports, Single(calls.power)},
      {Question::SampleSize, effect, options, "PowerReversebyOneSamp" + kind.exports, Rounded(calls.size)},
      {Question::HalfWidth, design, kind.accepts, "HalfCIOneSamp" + kind.exports, Single(calls.halfWidth)},
      {Question::SampleSizeForHalfWidth, effect, kind.accepts, "PowerReversebyHalfCIOneSamp" + kind.exports,
       Rounded(calls.sizeForHalfWidth)},
  };
}

std::vector<Sentence> Sentences(const CorrelationKind& kind) {
  const std::string correlation = kind.wording + " correlation";
  const std::string test = "the {one-sided?one-sided:two-sided} test of a " + correlation + " of {null} by " +
                           kind.method + " at a significance level of {alpha}";
  const std::string interval =
      "{confidence} confidence interval of a " + correlation + " of {r}" + kind.given + " by " + kind.method;
  return {
      {Question::Power,
       "With {sizes}, " + test + " has a power of {power} to detect a correlation of {r}" + kind.given + "."},
      {Question::SampleSize, "To detect a correlation of {r}" + kind.given + " with a power of {target-power}, " +
                                 test + " needs {sizes}; its power is then {power}."},
      {Question::HalfWidth, "With {sizes}, the " + interval + " has a half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For a " + interval +
           " with a half-width of at most {target-half-width}, the study needs {sizes}; the half-width is then "
           "{half-width}."},
  };
}

/// The calls of charts, over ranges.
using Call = std::function<Series(const Inputs&, const Ranges&)>;

Call CurveOverCorrelations(XYPlot (*plot)(const Inputs&, double step)) {
  return [=](const Inputs& in, const Ranges& r) { return Window(Curve(plot(in, CorrelationStep(r.x, r.step))), r.x); };
}

Call CurveOverSizes(const CorrelationKind& kind) {
  return [plot = kind.calls.overSizes, drawn = kind.drawnSizes](const Inputs& in, const Ranges& r) {
    if (drawn) CheckSizes(r.x, drawn(in));
    return Curve(plot(in, r.x));
  };
}

Call SurfaceOverSizes(const CorrelationKind& kind, XYZPlot (*plot)(const Inputs&, const Range& sizes, double step)) {
  return [plot, drawn = kind.drawnSizes](const Inputs& in, const Ranges& r) {
    if (drawn) CheckSizes(r.x, drawn(in));
    return Window(Surface(plot(in, r.x, CorrelationStep(r.y, r.step))), {}, r.y);
  };
}

Call SurfaceOverCorrelations(XYZPlot (*plot)(const Inputs&, double step)) {
  return [=](const Inputs& in, const Ranges& r) {
    const double step = std::min(CorrelationStep(r.x, r.step), CorrelationStep(r.y, r.step));
    return Window(Surface(plot(in, step)), r.x, r.y);
  };
}

std::vector<Chart> Charts(const CorrelationKind& kind) {
  const Axis size = CaseAxis(kind.mostPartialledOut);
  const Axis null = NullAxis();
  const Axis alternative = AlternativeAxis();
  const Axis difference = DifferenceAxis();
  const Names needs = Design(kind);
  const Names accepts = TestOptions(kind);
  const CorrelationCalls& calls = kind.calls;
  const auto Example = [&](const std::string& r, const std::string& chart) {
    return kind.name + " --r " + r + kind.exampleArguments + chart;
  };
  const auto Export = [&](const std::string& start) { return start + "OneSamp" + kind.exports; };
  return {
      {"n", {size}, needs, accepts, Export("PlotN"), Example("0.3", " --n 84 --chart n"), CurveOverSizes(kind)},
      {"null",
       {null},
       needs,
       accepts,
       Export("PlotNull"),
       Example("0.3", " --n 84 --chart null --from -0.5 --to 0.8"),
       CurveOverCorrelations(calls.overNulls)},
      {"r",
       {alternative},
       needs,
       accepts,
       Export("PlotAlter"),
       Example("0.3", " --n 84 --chart r"),
       CurveOverCorrelations(calls.overAlternatives)},
      {"difference",
       {difference},
       needs,
       accepts,
       Export("PlotRiskDiff"),
       Example("0.5", " --null 0.2 --n 84 --chart difference"),
       CurveOverCorrelations(calls.overDifferences)},
      {"n-difference",
       {size, difference},
       needs,
       accepts,
       Export("PlotNRiskDiff"),
       Example("-0.3", " --n 84 --chart n-difference"),
       SurfaceOverSizes(kind, calls.overSizesAndDifferences)},
      {"n-null",
       {size, null},
       needs,
       accepts,
       Export("PlotNNull"),
       Example("0.3", " --n 84 --chart n-null"),
       SurfaceOverSizes(kind, calls.overSizesAndNulls)},
      {"n-r",
       {size, alternative},
       needs,
       accepts,
       Export("PlotNAlter"),
       Example("0.3", " --n 84 --chart n-r --from 10,0 --to 200,0.8"),
       SurfaceOverSizes(kind, calls.overSizesAndAlternatives)},
      {"null-r",
       {null, alternative},
       needs,
       accepts,
       Export("PlotNullAlter"),
       Example("0.3", " --n 84 --chart null-r"),
       SurfaceOverCorrelations(calls.overNullsAndAlternatives)},
  };
}

}  // namespace

Test CorrelationTest(const CorrelationKind& kind) {
  Test test;
  test.name = kind.name;
  test.title = "Test of a " + kind.wording + " correlation";
  test.about = "Tests whether the " + kind.wording + " correlation of " + kind.definition + " is a given value.";
  test.counted = "cases";
  test.routes = Routes(kind);
  test.solvable = {CorrelationsDiffer()};
  test.sentences = Sentences(kind);
  test.charts = Charts(kind);
  return test;
}

}  // namespace planner
