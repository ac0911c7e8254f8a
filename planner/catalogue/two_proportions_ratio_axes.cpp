#include <algorithm>

#include "catalogue/axes.h"
#include "catalogue/two_groups.h"
#include "catalogue/two_proportions.h"

namespace planner {
namespace {

/// Four times to either side of the design and of `neutral`, as far as `allowed` goes.
Range RatiosAround(double design, const Range& allowed) {
  constexpr double neutral = 1;
  return {std::max(std::min(design, neutral) / 4, allowed.from), std::min(std::max(design, neutral) * 4, allowed.to)};
}

/// Each group keeps one observation.
Range AllowedSizeRatios(const Inputs& in) { return {1 / (TotalSize(in) - 1), TotalSize(in) - 1}; }

std::optional<Problem> RefuseSizeRatios(const Inputs& in, const Range& ratios) {
  const Range allowed = AllowedSizeRatios(in);
  if (ratios.from >= allowed.from && ratios.to <= allowed.to) return std::nullopt;
  return Problem{.code = Code::ChartRangeRefused,
                 .inputs = {"from", "to"},
                 .values = {ratios.from, ratios.to, TotalSize(in), allowed.to},
                 .sentence =
                     "{from} and {to} are <0> and <1>, but with <2> observations in all a ratio must be from 1/<3> to "
                     "<3>."};
}

constexpr double largestEffectRatio = 10;
constexpr double smallestOddsRatio = 0.1;
constexpr double largestSecond = 0.99;  // where the usual range of risk ratios starts

Range RiskRatiosAroundDesign(const Inputs& in, double) {
  const double smallest = std::min(FirstProportion(in) / largestSecond, RiskRatio(in));
  return RatiosAround(RiskRatio(in), {smallest, largestEffectRatio});
}

std::optional<Problem> RefuseRiskRatios(const Inputs& in, const Range& ratios) {
  if (ratios.from > FirstProportion(in)) return std::nullopt;
  return Problem{.code = Code::ChartRangeRefused,
                 .inputs = {"from"},
                 .values = {ratios.from, FirstProportion(in)},
                 .sentence = "{from} is <0>, but a risk ratio must be above the first proportion, which is <1>."};
}

}  // namespace

Axis SizeRatioAxisOfTwoProportions() {
  Axis axis =
      SizeRatioAxis([](const Inputs& in, double) { return RatiosAround(SizeRatio(in), AllowedSizeRatios(in)); });
  axis.refuse = RefuseSizeRatios;
  return axis;
}

Axis RiskRatioAxisOfTwoProportions() {
  return {.title = "risk ratio (first over second)",
          .symbol = "risk ratio",
          .limits = {0, largestEffectRatio, false, true, false},
          .design = RiskRatio,
          .vary = [](Inputs& in, const Inputs& design,
                     double at) { KeepFirstProportion(in, design, FirstProportion(design) / at); },
          .usual = RiskRatiosAroundDesign,
          .refuse = RefuseRiskRatios};
}

Axis OddsRatioAxisOfTwoProportions() {
  return {.title = "odds ratio (first over second)",
          .symbol = "odds ratio",
          .limits = {smallestOddsRatio, largestEffectRatio, true, true, false},
          .design = OddsRatio,
          .vary = [](Inputs& in, const Inputs& design,
                     double at) { KeepFirstProportion(in, design, SecondOfOddsRatio(FirstProportion(design), at)); },
          .usual =
              [](const Inputs& in, double) {
                return RatiosAround(OddsRatio(in), {smallestOddsRatio, largestEffectRatio});
              }};
}

}  // namespace planner
