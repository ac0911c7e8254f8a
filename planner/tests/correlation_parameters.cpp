#include "correlation_parameters.h"

#include <algorithm>
#include <utility>

#include "window.h"

namespace planner {
namespace {

constexpr double smallestSize = 4;
constexpr double largestChartSize = 5000;
constexpr double coarsestStep = 0.5;

double PartialledOut(const Inputs& in) { return in.Has("partialled-out") ? in.Number("partialled-out") : 0; }

Range AroundSize(const Inputs& in) {
  const double k = PartialledOut(in);
  return SizesAround(in.Number("n"), {smallestSize + k, largestChartSize + k});
}

}  // namespace

Parameter Correlation(std::string meaning) { return Number("r", "correlation", std::move(meaning)).Above(-1).Below(1); }

Parameter NullCorrelation() {
  return Number("null", "null correlation", "correlation under the null hypothesis").Above(-1).Below(1).Default(0.0);
}

Parameter CaseCount(double smallest) {
  return Number("n", "sample size", "number of cases").Alias("sample-size").Whole().AtLeast(smallest).AtMost(1e9);
}

Parameter TowardsCorrelation() {
  return Flag("one-sided", "one-sided test", "test in the direction of the correlation expected only");
}

Condition CorrelationsDiffer() {
  return {{"r", "null"},
          [](const Inputs& in) { return in.Number("r") != in.Number("null"); },
          "The correlation expected is the null correlation: without an effect, no sample size reaches the power."};
}

Axis CaseAxis(double mostPartialledOut) {
  return {"sample size (cases)",
          "n",
          {smallestSize, largestChartSize + mostPartialledOut, true, true, true},
          [](const Inputs& in) { return in.Number("n"); },
          AroundSize};
}

Axis NullAxis() {
  return {"null correlation", "null", {-1, 1, true, true, false}, [](const Inputs& in) { return in.Number("null"); }};
}

Axis AlternativeAxis() {
  return {"correlation", "r", {-1, 1, true, true, false}, [](const Inputs& in) { return in.Number("r"); }};
}

Axis DifferenceAxis() {
  return {
      "difference of the correlation from the null", "difference", {-2, 2, true, true, false}, [](const Inputs& in) {
        return in.Number("r") - in.Number("null");
      }};
}

double CorrelationStep(const Range& shown, double share) {
  constexpr double wholeSpan = 2;
  return std::min(StepOfGrid(shown, wholeSpan, share), coarsestStep);
}

}  // namespace planner
