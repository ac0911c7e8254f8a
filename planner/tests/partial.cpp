#include <algorithm>

#include "catalogue.h"
#include "correlation_parameters.h"
#include "kelpower.h"
#include "planner/error.h"
#include "window.h"

namespace planner {
namespace {

constexpr double mostPartialledOut = 1e5;

double SmallestSize(const Inputs& in) { return in.Number("partialled-out") + 4; }

Range DrawnSizes(const Inputs& in) {
  constexpr double sizesBeyondPartialledOut = 5000;
  return {SmallestSize(in), in.Number("partialled-out") + sizesBeyondPartialledOut};
}

// The chart over the variables partialled out has a point for each case.
constexpr double largestPartialledOutSize = 1e6;
const char* const tooManyPoints = "--chart partialled-out has a point for each case: --n must be at most 1000000.";

Axis PartialledOutAxis() {
  return {"variables partialled out",
          "k",
          {0, mostPartialledOut, true, true, true},
          [](const Inputs& in) { return in.Number("partialled-out"); },
          [](const Inputs& in) {
            return Range{0, std::max(in.Number("n") - 5, 1.0)};
          }};
}

std::vector<Chart> Charts() {
  const Axis size = CaseAxis(mostPartialledOut);
  const Axis null = NullAxis();
  const Axis alternative = AlternativeAxis();
  const Axis difference = DifferenceAxis();
  const std::vector<std::string> needs{"r", "partialled-out", "n"};
  const std::vector<std::string> accepts{"null", "one-sided"};
  return {
      {"n",
       {size},
       needs,
       accepts,
       "PlotNOneSampPartial",
       "partial --r 0.3 --partialled-out 3 --n 84 --chart n",
       [](const Inputs& in, const Ranges& r) {
         CheckSizes(r.x, DrawnSizes(in));
         return Curve(PlotNOneSampPartial(in.Number("n"), in.Number("partialled-out"), in.Number("r"),
                                          in.Number("null"), in.Flag("one-sided"), in.Alpha(), r.x.First(),
                                          r.x.Last()));
       }},
      {"null",
       {null},
       needs,
       accepts,
       "PlotNullOneSampPartial",
       "partial --r 0.3 --partialled-out 3 --n 84 --chart null --from -0.5 --to 0.8",
       [](const Inputs& in, const Ranges& r) {
         const double step = CorrelationStep(r.x, r.step);
         return Window(Curve(PlotNullOneSampPartial(in.Number("n"), in.Number("partialled-out"), in.Number("r"),
                                                    in.Flag("one-sided"), in.Alpha(), step)),
                       r.x);
       }},
      {"r",
       {alternative},
       needs,
       accepts,
       "PlotAlterOneSampPartial",
       "partial --r 0.3 --partialled-out 3 --n 84 --chart r",
       [](const Inputs& in, const Ranges& r) {
         const double step = CorrelationStep(r.x, r.step);
         return Window(Curve(PlotAlterOneSampPartial(in.Number("n"), in.Number("partialled-out"), in.Number("null"),
                                                     in.Flag("one-sided"), in.Alpha(), step)),
                       r.x);
       }},
      {"difference",
       {difference},
       needs,
       accepts,
       "PlotRiskDiffOneSampPartial",
       "partial --r 0.5 --partialled-out 3 --null 0.2 --n 84 --chart difference",
       [](const Inputs& in, const Ranges& r) {
         const double step = CorrelationStep(r.x, r.step);
         return Window(Curve(PlotRiskDiffOneSampPartial(in.Number("n"), in.Number("partialled-out"), in.Number("null"),
                                                        in.Flag("one-sided"), in.Alpha(), step)),
                       r.x);
       }},
      {"n-difference",
       {size, difference},
       needs,
       accepts,
       "PlotNRiskDiffOneSampPartial",
       "partial --r -0.3 --partialled-out 3 --n 84 --chart n-difference",
       [](const Inputs& in, const Ranges& r) {
         CheckSizes(r.x, DrawnSizes(in));
         const double step = CorrelationStep(r.y, r.step);
         return Window(Surface(PlotNRiskDiffOneSampPartial(in.Number("n"), in.Number("partialled-out"), in.Number("r"),
                                                           in.Number("null"), in.Flag("one-sided"), in.Alpha(),
                                                           r.x.First(), r.x.Last(), step)),
                       {}, r.y);
       }},
      {"n-null",
       {size, null},
       needs,
       accepts,
       "PlotNNullOneSampPartial",
       "partial --r 0.3 --partialled-out 3 --n 84 --chart n-null",
       [](const Inputs& in, const Ranges& r) {
         CheckSizes(r.x, DrawnSizes(in));
         const double step = CorrelationStep(r.y, r.step);
         return Window(Surface(PlotNNullOneSampPartial(in.Number("n"), in.Number("partialled-out"), in.Number("r"),
                                                       in.Number("null"), in.Flag("one-sided"), in.Alpha(), r.x.First(),
                                                       r.x.Last(), step)),
                       {}, r.y);
       }},
      {"n-r",
       {size, alternative},
       needs,
       accepts,
       "PlotNAlterOneSampPartial",
       "partial --r 0.3 --partialled-out 3 --n 84 --chart n-r --from 10,0 --to 200,0.8",
       [](const Inputs& in, const Ranges& r) {
         CheckSizes(r.x, DrawnSizes(in));
         const double step = CorrelationStep(r.y, r.step);
         return Window(Surface(PlotNAlterOneSampPartial(in.Number("n"), in.Number("partialled-out"), in.Number("r"),
                                                        in.Number("null"), in.Flag("one-sided"), in.Alpha(),
                                                        r.x.First(), r.x.Last(), step)),
                       {}, r.y);
       }},
      {"null-r",
       {null, alternative},
       needs,
       accepts,
       "PlotNullAlterOneSampPartial",
       "partial --r 0.3 --partialled-out 3 --n 84 --chart null-r",
       [](const Inputs& in, const Ranges& r) {
         const double step = std::min(CorrelationStep(r.x, r.step), CorrelationStep(r.y, r.step));
         return Window(Surface(PlotNullAlterOneSampPartial(in.Number("n"), in.Number("partialled-out"),
                                                           in.Flag("one-sided"), in.Alpha(), step)),
                       r.x, r.y);
       }},
      {"partialled-out",
       {PartialledOutAxis()},
       needs,
       accepts,
       "PlotNPartialoutOneSampPartial",
       "partial --r 0.3 --partialled-out 3 --n 84 --chart partialled-out --from 0 --to 60",
       [](const Inputs& in, const Ranges& r) {
         if (in.Number("n") > largestPartialledOutSize) throw InputError(tooManyPoints);
         return Window(Curve(PlotNPartialoutOneSampPartial(in.Number("n"), in.Number("r"), in.Number("null"),
                                                           in.Flag("one-sided"), in.Alpha())),
                       r.x);
       }},
  };
}

Test Describe() {
  Test test;
  test.name = "partial";
  test.title = "Test of a partial correlation";
  test.about = "Tests whether the partial correlation of two variables, given others, is a given value.";
  test.counted = "cases";

  test.parameters = {
      Correlation("correlation expected"),
      NullCorrelation(),
      Number("partialled-out", "variables partialled out", "number of variables partialled out")
          .Whole()
          .AtLeast(0)
          .AtMost(mostPartialledOut),
      CaseCount(4),
      TowardsCorrelation(),
  };

  test.routes = {
      {Question::Power,
       {"r", "partialled-out", "n"},
       {"null", "one-sided"},
       "PowerbyOneSampPartial",
       [](const Inputs& in) -> Numbers {
         return {PowerbyOneSampPartial(in.Number("n"), in.Number("partialled-out"), in.Number("r"), in.Number("null"),
                                       in.Flag("one-sided"), in.Alpha())};
       }},
      {Question::SampleSize,
       {"r", "partialled-out"},
       {"null", "one-sided"},
       "PowerReversebyOneSampPartial",
       [](const Inputs& in) -> Numbers {
         return WholeSize(PowerReversebyOneSampPartial(in.Number("power"), in.Number("partialled-out"), in.Number("r"),
                                                       in.Number("null"), in.Flag("one-sided"), in.Alpha()),
                          SmallestSize(in));
       }},
      {Question::HalfWidth,
       {"r", "partialled-out", "n"},
       {},
       "HalfCIOneSampPartial",
       [](const Inputs& in) -> Numbers {
         return {HalfCIOneSampPartial(in.Number("n"), in.Number("partialled-out"), in.Number("r"), in.Alpha())};
       }},
      {Question::SampleSizeForHalfWidth,
       {"r", "partialled-out"},
       {},
       "PowerReversebyHalfCIOneSampPartial",
       [](const Inputs& in) -> Numbers {
         return WholeSize(PowerReversebyHalfCIOneSampPartial(in.Number("half-width"), in.Number("partialled-out"),
                                                             in.Number("r"), in.Alpha(), in.Stop()),
                          SmallestSize(in));
       }},
  };

  test.conditions = {
      {{"n", "partialled-out"},
       [](const Inputs& in) { return in.Number("n") >= SmallestSize(in); },
       "--n must exceed the number of variables partialled out by at least 4."},
  };
  test.solvable = {CorrelationsDiffer()};

  test.sentences = {
      {Question::Power,
       "With {sizes}, the {one-sided?one-sided:two-sided} test of a partial correlation of {null} by Fisher's "
       "z at a significance level of {alpha} has a power of {power} to detect a "
       "correlation of {r} given {partialled-out} variables."},
      {Question::SampleSize,
       "To detect a correlation of {r} given {partialled-out} variables with a power of {target-power}, the "
       "{one-sided?one-sided:two-sided} test of a "
       "partial correlation of {null} by Fisher's z at a significance level of "
       "{alpha} needs {sizes}; its power is then {power}."},
      {Question::HalfWidth,
       "With {sizes}, the {confidence} confidence interval of a partial correlation of {r} given {partialled-out} "
       "variables by Fisher's "
       "z has a half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For a {confidence} confidence interval of a partial correlation of {r} given {partialled-out} variables by "
       "Fisher's z with a half-width of at most {target-half-width}, the study needs {sizes}; the half-width is then "
       "{half-width}."},
  };

  test.examples = {
      {"partial --r 0.3 --partialled-out 3 --n 84",
       "With 84 cases, the two-sided test of a partial correlation of 0 by Fisher's z at a significance level of 0.05 "
       "has a power of 0.7854 to detect a correlation of 0.3 given 3 variables."},
      {"partial --r 0.5 --partialled-out 3 --null 0.2 --n 84 --one-sided",
       "With 84 cases, the one-sided test of a partial correlation of 0.2 by Fisher's z at a significance level of "
       "0.05 has a power of 0.9242 to detect a correlation of 0.5 given 3 variables."},
      {"partial --r 0.3 --partialled-out 3 --power 0.9",
       "To detect a correlation of 0.3 given 3 variables with a power of 0.9, the two-sided test of a partial "
       "correlation of 0 by Fisher's z at a significance level of 0.05 needs 115 cases; its power is then 0.9008."},
      {"partial --r 0.3 --partialled-out 3 --n 84 --interval",
       "With 84 cases, the 95% confidence interval of a partial correlation of 0.3 given 3 variables by Fisher's z has "
       "a half-width of 0.1996."},
      {"partial --r 0.7 --partialled-out 3 --half-width 0.05",
       "For a 95% confidence interval of a partial correlation of 0.7 given 3 variables by Fisher's z with a "
       "half-width of at most 0.05, the study needs 407 cases; the half-width is then 0.04999."},
  };
  test.charts = Charts();
  return test;
}

}  // namespace

Test PartialTest() { return WithCommonParameters(Describe()); }

}  // namespace planner
