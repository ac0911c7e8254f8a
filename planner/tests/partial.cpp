#include <algorithm>

#include "catalogue.h"
#include "correlation.h"
#include "correlation_parameters.h"
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

const CorrelationCalls calls = {
    [](const Inputs& in) {
      return PowerbyOneSampPartial(in.Number("n"), in.Number("partialled-out"), in.Number("r"), in.Number("null"),
                                   in.Flag("one-sided"), in.Alpha());
    },
    [](const Inputs& in) {
      return PowerReversebyOneSampPartial(in.Number("power"), in.Number("partialled-out"), in.Number("r"),
                                          in.Number("null"), in.Flag("one-sided"), in.Alpha());
    },
    [](const Inputs& in) {
      return HalfCIOneSampPartial(in.Number("n"), in.Number("partialled-out"), in.Number("r"), in.Alpha());
    },
    [](const Inputs& in) {
      return PowerReversebyHalfCIOneSampPartial(in.Number("half-width"), in.Number("partialled-out"), in.Number("r"),
                                                in.Alpha(), in.Stop());
    },
    [](const Inputs& in, const Range& sizes) {
      return PlotNOneSampPartial(in.Number("n"), in.Number("partialled-out"), in.Number("r"), in.Number("null"),
                                 in.Flag("one-sided"), in.Alpha(), sizes.First(), sizes.Last());
    },
    [](const Inputs& in, double step) {
      return PlotNullOneSampPartial(in.Number("n"), in.Number("partialled-out"), in.Number("r"), in.Flag("one-sided"),
                                    in.Alpha(), step);
    },
    [](const Inputs& in, double step) {
      return PlotAlterOneSampPartial(in.Number("n"), in.Number("partialled-out"), in.Number("null"),
                                     in.Flag("one-sided"), in.Alpha(), step);
    },
    [](const Inputs& in, double step) {
      return PlotRiskDiffOneSampPartial(in.Number("n"), in.Number("partialled-out"), in.Number("null"),
                                        in.Flag("one-sided"), in.Alpha(), step);
    },
    [](const Inputs& in, const Range& sizes, double step) {
      return PlotNRiskDiffOneSampPartial(in.Number("n"), in.Number("partialled-out"), in.Number("r"), in.Number("null"),
                                         in.Flag("one-sided"), in.Alpha(), sizes.First(), sizes.Last(), step);
    },
    [](const Inputs& in, const Range& sizes, double step) {
      return PlotNNullOneSampPartial(in.Number("n"), in.Number("partialled-out"), in.Number("r"), in.Number("null"),
                                     in.Flag("one-sided"), in.Alpha(), sizes.First(), sizes.Last(), step);
    },
    [](const Inputs& in, const Range& sizes, double step) {
      return PlotNAlterOneSampPartial(in.Number("n"), in.Number("partialled-out"), in.Number("r"), in.Number("null"),
                                      in.Flag("one-sided"), in.Alpha(), sizes.First(), sizes.Last(), step);
    },
    [](const Inputs& in, double step) {
      return PlotNullAlterOneSampPartial(in.Number("n"), in.Number("partialled-out"), in.Flag("one-sided"), in.Alpha(),
                                         step);
    },
};

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

Chart OverVariablesPartialledOut() {
  return {"partialled-out",
          {PartialledOutAxis()},
          {"r", "partialled-out", "n"},
          {"null", "one-sided"},
          "PlotNPartialoutOneSampPartial",
          "partial --r 0.3 --partialled-out 3 --n 84 --chart partialled-out --from 0 --to 60",
          [](const Inputs& in, const Ranges& r) {
            if (in.Number("n") > largestPartialledOutSize) throw InputError(tooManyPoints);
            return Window(Curve(PlotNPartialoutOneSampPartial(in.Number("n"), in.Number("r"), in.Number("null"),
                                                              in.Flag("one-sided"), in.Alpha())),
                          r.x);
          }};
}

Test Describe() {
  CorrelationKind kind;
  kind.name = "partial";
  kind.wording = "partial";
  kind.exports = "Partial";
  kind.definition = "two variables, given others,";
  kind.given = " given {partialled-out} variables";
  kind.exampleArguments = " --partialled-out 3";
  kind.needs = {"partialled-out"};
  kind.mostPartialledOut = mostPartialledOut;
  kind.drawnSizes = DrawnSizes;
  kind.calls = calls;

  Test test = CorrelationTest(kind);
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
  test.conditions = {
      {{"n", "partialled-out"},
       [](const Inputs& in) { return in.Number("n") >= SmallestSize(in); },
       "--n must exceed the number of variables partialled out by at least 4."},
  };
  test.charts.push_back(OverVariablesPartialledOut());
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
  return test;
}

}  // namespace

Test PartialTest() { return WithCommonParameters(Describe()); }

}  // namespace planner
