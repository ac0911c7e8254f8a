#include "catalogue/axes.h"
#include "catalogue/charts.h"
#include "catalogue/group_parameters.h"

namespace planner {
namespace {

/// At an eta squared of 1 there is no test.
Axis EtaSquaredAxis() {
  Axis axis = ParameterAxis(EtaSquared(), "eta squared", [](const Inputs&, double) -> Range { return {0, 1}; });
  axis.scale = [](const Inputs&) -> Range { return {0, 1}; };
  axis.scaleEnds = ScaleEnds::First;
  return axis;
}

}  // namespace

std::vector<Chart> ChartsOfAnova() {
  const Axis size = TotalSizeAxis();
  const Axis sd = WithinSdAxis();
  const Axis f = ParameterAxis(EffectF(), "f", [](const Inputs&, double) -> Range { return {0, 2}; });
  const Axis eta = EtaSquaredAxis();
  return {
      {.name = "n",
       .axes = {size},
       .needs = {"means", "sd", "n"},
       .accepts = {"groups"},
       .example = "anova --means 10,12,15 --sd 6 --n 20,20,20 --chart n"},
      {.name = "n",
       .axes = {size},
       .needs = {"effect-f", "n"},
       .accepts = {"groups"},
       .example = "anova --effect-f 0.25 --n 30,30,40 --chart n --from 30 --to 300"},
      {.name = "n",
       .axes = {size},
       .needs = {"eta-squared", "n"},
       .accepts = {"groups"},
       .example = "anova --eta-squared 0.06 --n 30 --groups 4 --chart n",
       .isAnotherWay = true},
      {.name = "effect",
       .axes = {f},
       .needs = {"effect-f", "n"},
       .accepts = {"groups"},
       .example = "anova --effect-f 0.25 --n 30,30,40 --chart effect --from 0 --to 1"},
      {.name = "effect",
       .axes = {eta},
       .needs = {"eta-squared", "n"},
       .accepts = {"groups"},
       .example = "anova --eta-squared 0.06 --n 30 --groups 4 --chart effect",
       .isAnotherWay = true},
      {.name = "sd",
       .axes = {sd},
       .needs = {"means", "sd", "n"},
       .accepts = {"groups"},
       .example = "anova --means 10,12,15 --sd 6 --n 20,20,20 --chart sd --from 2 --to 12"},
      {.name = "n-sd",
       .axes = {size, sd},
       .needs = {"means", "sd", "n"},
       .accepts = {"groups"},
       .example = "anova --means 10,12,15 --sd 6 --n 20,20,20 --chart n-sd --from 12,2 --to 150,12"},
      {.name = "n-effect",
       .axes = {size, f},
       .needs = {"effect-f", "n"},
       .accepts = {"groups"},
       .example = "anova --effect-f 0.25 --n 30,30,40 --chart n-effect --from 12,0 --to 200,1"},
      {.name = "n-effect",
       .axes = {size, eta},
       .needs = {"eta-squared", "n"},
       .accepts = {"groups"},
       .example = "anova --eta-squared 0.06 --n 30 --groups 4 --chart n-effect",
       .isAnotherWay = true},
  };
}

}  // namespace planner
