#include <algorithm>
#include <string>
#include <utility>

#include "catalogue/axes.h"
#include "catalogue/charts.h"

namespace planner {
namespace {

constexpr double mostCharted = 5000;  // observations

Range UsualSizes(const Inputs& in, double) { return {2, std::min(std::max(4.0, 2 * in.Number("n")), mostCharted)}; }

/// The sizes around the design, or all where these would reach too far.
Range UsualSizesOfSurface(const Inputs& in, double power) {
  return 2 * in.Number("n") <= mostCharted ? AroundSizeByPower(in, power) : Range{2, mostCharted};
}

/// The differences that the null proportion leaves.
Range AllDifferences(const Inputs& in) { return {-in.Number("null"), 1 - in.Number("null")}; }

Axis DifferenceAxis() {
  return {.title = "difference of the proportions (expected minus null)",
          .symbol = "difference",
          .limits = {-1, 1, true, true, false},
          .design = [](const Inputs& in) { return in.Number("proportion") - in.Number("null"); },
          .vary = [](Inputs& in, const Inputs& design, double at) { in.Set("proportion", at + design.Number("null")); },
          .usual = [](const Inputs&, double) -> Range {
            return {-1, 1};
          },
          .scale = AllDifferences,
          .scaleEnds = ScaleEnds::None,
          .stepIsOfScale = true};
}

}  // namespace

std::vector<Chart> ChartsOfProportion() {
  const Axis size = SizeAxis("sample size (observations)", 2, mostCharted, UsualSizes);
  const Axis sizeOfSurface = WithUsual(size, UsualSizesOfSurface);
  const Axis proportion = ProportionAxis("proportion", "p", "proportion");
  const Axis null = ProportionAxis("null proportion", "p0", "null");
  const Axis difference = DifferenceAxis();
  const std::string design = "proportion --proportion 0.65 --null 0.5 --n 60 ";
  const auto chart = [&](const std::string& name, std::vector<Axis> axes, const std::string& options) -> Chart {
    return {.name = name,
            .axes = std::move(axes),
            .needs = {"proportion", "null", "n"},
            .accepts = {"one-sided", "exact", "correction"},
            .example = design + options};
  };
  return {
      chart("n", {size}, "--exact --chart n"),
      chart("null", {null}, "--chart null --from 0.3 --to 0.7"),
      chart("alternative", {proportion}, "--chart alternative"),
      chart("difference", {difference}, "--chart difference"),
      chart("n-difference", {sizeOfSurface, difference}, "--chart n-difference"),
      chart("n-null", {sizeOfSurface, null}, "--chart n-null --from 20,0.3 --to 120,0.7"),
      chart("n-alternative", {sizeOfSurface, proportion}, "--chart n-alternative --step 0.1"),
      chart("null-alternative", {null, proportion}, "--chart null-alternative --step 0.05"),
  };
}

}  // namespace planner
