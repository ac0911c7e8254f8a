#include "catalogue/axes.h"
#include "catalogue/charts.h"
#include "catalogue/mean_parameters.h"

namespace planner {

std::vector<Chart> ChartsOfMean() {
  const Axis size = SizeAxis("sample size (observations)", 2, 1e9, UpToTwiceSize);
  const Axis effect = EffectDAxis();
  return {
      {.name = "n",
       .axes = {size},
       .needs = {"mean", "sd", "n"},
       .accepts = {"test-value", "one-sided"},
       .example = "mean --mean 104 --test-value 100 --sd 10 --n 40 --chart n"},
      {.name = "n",
       .axes = {size},
       .needs = {"effect-d", "n"},
       .accepts = {"one-sided"},
       .example = "mean --effect-d 0.4 --n 40 --chart n"},
      {.name = "effect",
       .axes = {effect},
       .needs = {"effect-d", "n"},
       .accepts = {"one-sided"},
       .example = "mean --effect-d 0.4 --n 40 --chart effect --from 0 --to 1"},
      {.name = "effect-n",
       .axes = {effect, size},
       .needs = {"effect-d", "n"},
       .accepts = {"one-sided"},
       .example = "mean --effect-d 0.4 --n 40 --one-sided --chart effect-n --from 0,5 --to 1,80"},
  };
}

}  // namespace planner
