#include <cmath>

#include "catalogue/axes.h"
#include "catalogue/charts.h"
#include "catalogue/regression.h"

namespace planner {
namespace {

constexpr double sizesBeyondPredictors = 5000;

Range DrawnSizes(const Inputs& in) { return {SmallestSize(in), Predictors(in) + sizesBeyondPredictors}; }

Axis CaseAxis() {
  Axis axis = SizeAxis("sample size (cases)", 2, mostPredictors + sizesBeyondPredictors,
                       [](const Inputs& in, double) { return SizesAround(in.Number("n"), DrawnSizes(in)); });
  axis.refuse = [](const Inputs& in, const Range& sizes) { return RefuseSizes(sizes, DrawnSizes(in)); };
  return axis;
}

Range ZeroToOne(const Inputs&) { return {0, 1}; }

Axis EffectAxis() {
  return {.title = "effect size f2",
          .symbol = "f2",
          .limits = {0, 1, true, true, false},
          .input = Name("effect-f2"),
          .usual = [](const Inputs& in, double) { return ZeroToOne(in); },
          .scale = ZeroToOne,
          .scaleEnds = ScaleEnds::None};
}

/// The power is the same for R and -R, so the usual range leaves out negative values.
Axis CorrelationAxis() {
  return {.title = "multiple correlation R",
          .symbol = "R",
          .limits = {-1, 1, true, true, false},
          .design = [](const Inputs& in) { return std::sqrt(in.Number("r-squared")); },
          .vary = [](Inputs& in, const Inputs&, double at) { in.Set("r-squared", at * at); },
          .usual = [](const Inputs& in, double) { return ZeroToOne(in); },
          .scale = [](const Inputs&) -> Range {
            return {-1, 1};
          },
          .scaleEnds = ScaleEnds::None};
}

}  // namespace

std::vector<Chart> ChartsOfRegression() {
  const Names ofEffect{"effect-f2", "predictors", "n"};
  const Names ofFit{"r-squared", "predictors", "n"};
  const Names options{"tested", "random", "no-intercept"};
  return {
      {.name = "n",
       .axes = {CaseAxis()},
       .needs = ofFit,
       .accepts = {"r-squared-reduced", "tested", "random", "no-intercept"},
       .example = "regression --r-squared 0.3 --r-squared-reduced 0.2 --predictors 5 --tested 2 --n 80 --chart n"},
      {.name = "n",
       .axes = {CaseAxis()},
       .needs = ofEffect,
       .accepts = options,
       .example = "regression --effect-f2 0.15 --predictors 5 --n 80 --random --chart n"},
      {.name = "effect",
       .axes = {EffectAxis()},
       .needs = ofEffect,
       .accepts = options,
       .example = "regression --effect-f2 0.15 --predictors 5 --n 80 --chart effect --from 0 --to 0.4"},
      {.name = "r",
       .axes = {CorrelationAxis()},
       .needs = ofFit,
       .accepts = options,
       .example = "regression --r-squared 0.1 --predictors 5 --n 95 --random --chart r"},
      {.name = "n-r",
       .axes = {CaseAxis(), CorrelationAxis()},
       .needs = ofFit,
       .accepts = options,
       .example = "regression --r-squared 0.1 --predictors 5 --n 95 --chart n-r"},
      {.name = "n-effect",
       .axes = {CaseAxis(), EffectAxis()},
       .needs = ofEffect,
       .accepts = options,
       .example = "regression --effect-f2 0.15 --predictors 5 --n 80 --chart n-effect --from 20,0 --to 160,0.5"},
  };
}

}  // namespace planner
