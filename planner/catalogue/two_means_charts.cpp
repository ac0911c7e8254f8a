#include <algorithm>
#include <cmath>

#include "catalogue/axes.h"
#include "catalogue/charts.h"
#include "catalogue/mean_parameters.h"
#include "catalogue/two_groups.h"

namespace planner {
namespace {

/// Four times to either side of the design and of equal sizes, as far as the groups keep more than one observation.
Range RatiosAroundDesign(const Inputs& in, double) {
  const double ratio = SizeRatio(in);
  const double most = 0.8 * (TotalSize(in) - 2);
  return {std::max(std::min(ratio, 1.0) / 4, 1 / most), std::min(std::max(ratio, 1.0) * 4, most)};
}

/// Ratios of a surface must leave each group more than one observation.
std::optional<Problem> RefuseRatios(const Inputs& in, const Range& ratios) {
  const double most = TotalSize(in) - 1;
  if (ratios.from > 1 / most && ratios.to < most) return std::nullopt;
  return Problem{.code = Code::ChartEmpty};
}

/// From -5 to 5 times the design's difference, or -100 to 100 for a design without one.
Axis DifferenceAxis() {
  constexpr double widest = 1e6;
  return {.title = "difference of the means (first minus second)",
          .symbol = "difference",
          .limits = {-widest, widest, true, true, false},
          .design = DifferenceOfMeans,
          .vary = [](Inputs& in, const Inputs& design,
                     double at) { in.SetEntry("means", 0, design.List("means")[1] + at); },
          .usual = [](const Inputs& in, double) -> Range {
            const double end = DifferenceOfMeans(in) != 0 ? 5 * std::abs(DifferenceOfMeans(in)) : 100;
            return {-end, end};
          }};
}

}  // namespace

std::vector<Chart> ChartsOfTwoMeans() {
  const Names ofMeans{"means", "sd", "n"};
  const Names ofEffect{"effect-d", "n"};
  const Axis ratio = SizeRatioAxis(RatiosAroundDesign);
  Axis ratioOfSurface = ratio;
  ratioOfSurface.refuse = RefuseRatios;
  const Axis effect = EffectDAxis();
  const Axis difference = DifferenceAxis();
  return {
      {.name = "ratio",
       .axes = {ratio},
       .needs = ofMeans,
       .accepts = {"one-sided"},
       .example = "two-means --means 52,47 --sd 10,14 --n 40,60 --chart ratio --from 0.2 --to 5"},
      {.name = "ratio",
       .axes = {ratio},
       .needs = ofEffect,
       .accepts = {"one-sided"},
       .example = "two-means --effect-d 0.6 --n 90,60 --chart ratio"},
      {.name = "effect",
       .axes = {effect},
       .needs = ofEffect,
       .accepts = {"one-sided"},
       .example = "two-means --effect-d 0.6 --n 90,60 --one-sided --chart effect"},
      {.name = "difference",
       .axes = {difference},
       .needs = ofMeans,
       .accepts = {"one-sided"},
       .example = "two-means --means 52,47 --sd 10,14 --n 40 --chart difference --from 0 --to 12"},
      {.name = "ratio-effect",
       .axes = {ratioOfSurface, effect},
       .needs = ofEffect,
       .accepts = {"one-sided"},
       .example = "two-means --effect-d 0.6 --n 90,60 --chart ratio-effect --from 0.2,0 --to 5,1"},
      {.name = "ratio-difference",
       .axes = {ratioOfSurface, difference},
       .needs = ofMeans,
       .accepts = {"one-sided"},
       .example = "two-means --means 52,47 --sd 10,14 --n 40 --chart ratio-difference --from 0.2,0 --to 5,12"},
  };
}

}  // namespace planner
