#include "catalogue/correlation.h"

namespace planner {
namespace {

constexpr double smallestSize = 4;
constexpr double largestChartSize = 5000;

Range AroundSize(const Inputs& in, double) {
  const double k = in.Has("partialled-out") ? in.Number("partialled-out") : 0;
  return SizesAround(in.Number("n"), {smallestSize + k, largestChartSize + k});
}

Axis CaseAxis(const CorrelationKind& kind) {
  Axis axis = SizeAxis("sample size (cases)", smallestSize, largestChartSize + kind.mostPartialledOut, AroundSize);
  axis.refuse = kind.refuseSizes;
  return axis;
}

Axis CorrelationAxis(const char* title, const char* symbol, Name input) {
  return {.title = title,
          .symbol = symbol,
          .limits = {-1, 1, true, true, false},
          .input = input,
          .usual = [](const Inputs&, double) -> Range {
            return {-1, 1};
          }};
}

/// The differences that the null correlation leaves.
Range AllDifferences(const Inputs& in) { return {-1 - in.Number("null"), 1 - in.Number("null")}; }

Axis DifferenceAxis() {
  return {.title = "difference of the correlation from the null",
          .symbol = "difference",
          .limits = {-2, 2, true, true, false},
          .design = [](const Inputs& in) { return in.Number("r") - in.Number("null"); },
          .vary = [](Inputs& in, const Inputs& design, double at) { in.Set("r", at + design.Number("null")); },
          .usual = [](const Inputs& in, double) { return AllDifferences(in); },
          .scale = AllDifferences};
}

}  // namespace

std::vector<Chart> CorrelationCharts(const CorrelationKind& kind) {
  const Axis size = CaseAxis(kind);
  const Axis null = CorrelationAxis("null correlation", "null", "null");
  const Axis r = CorrelationAxis("correlation", "r", "r");
  const Axis difference = DifferenceAxis();
  const auto chart = [&](const std::string& name, std::vector<Axis> axes, const std::string& effect,
                         const std::string& range = "") -> Chart {
    return {.name = name,
            .axes = std::move(axes),
            .needs = CorrelationDesign(kind),
            .accepts = CorrelationOptions(kind),
            .example = kind.name + " --r " + effect + " --n 84 --chart " + name + range};
  };
  const std::string usual = "0.3" + kind.exampleArguments;
  return {
      chart("n", {size}, usual),
      chart("null", {null}, usual, " --from -0.5 --to 0.8"),
      chart("r", {r}, usual),
      chart("difference", {difference}, "0.5" + kind.exampleArguments + " --null 0.2"),
      chart("n-difference", {size, difference}, "-0.3" + kind.exampleArguments),
      chart("n-null", {size, null}, usual),
      chart("n-r", {size, r}, usual, " --from 10,0 --to 200,0.8"),
      chart("null-r", {null, r}, usual),
  };
}

}  // namespace planner
