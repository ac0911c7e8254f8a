#include "catalogue/axes.h"
#include "catalogue/charts.h"
#include "catalogue/mean_parameters.h"

namespace planner {

std::vector<Chart> ChartsOfPairedMeans() {
  const Axis size = SizeAxis("number of pairs", 2, 1e9, UpToTwiceSize);
  const Axis effect = EffectDAxis();
  return {
      {.name = "n",
       .axes = {size},
       .needs = {"means", "sds", "correlation", "n"},
       .accepts = {"one-sided"},
       .example = "paired-means --means 25,21 --sds 8,7 --correlation 0.6 --n 30 --chart n"},
      {.name = "n",
       .axes = {size},
       .needs = {"mean-difference", "sd-difference", "n"},
       .accepts = {"one-sided"},
       .example = "paired-means --mean-difference 4 --sd-difference 8 --n 44 --chart n --from 10 --to 100",
       .isAnotherWay = true},
      {.name = "n",
       .axes = {size},
       .needs = {"effect-d", "n"},
       .accepts = {"one-sided"},
       .example = "paired-means --effect-d 0.4 --n 40 --chart n"},
      {.name = "effect",
       .axes = {effect},
       .needs = {"effect-d", "n"},
       .accepts = {"one-sided"},
       .example = "paired-means --effect-d 0.4 --n 40 --chart effect --from 0 --to 1"},
      {.name = "effect-n",
       .axes = {effect, size},
       .needs = {"effect-d", "n"},
       .accepts = {"one-sided"},
       .example = "paired-means --effect-d 0.4 --n 40 --one-sided --chart effect-n --from 0,5 --to 1,80"},
  };
}

}  // namespace planner
