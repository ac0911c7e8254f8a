#include "catalogue/axes.h"
#include "catalogue/charts.h"
#include "catalogue/group_parameters.h"

namespace planner {

std::vector<Chart> ChartsOfPairwise() {
  const Names needs{"pair", "means", "sd", "n"};
  const Names accepts{"groups", "adjust"};
  const Axis size = TotalSizeAxis();
  const Axis sd = WithinSdAxis();
  return {
      {.name = "n",
       .axes = {size},
       .needs = needs,
       .accepts = accepts,
       .example = "pairwise --pair 1,3 --means 10,12,15 --sd 6 --n 20 --chart n"},
      {.name = "sd",
       .axes = {sd},
       .needs = needs,
       .accepts = accepts,
       .example = "pairwise --pair 1,3 --means 10,12,15 --sd 6 --n 20 --chart sd --from 2 --to 12"},
      {.name = "n-sd",
       .axes = {size, sd},
       .needs = needs,
       .accepts = accepts,
       .example = "pairwise --pair 1,3 --means 10,12,15 --sd 6 --n 20 --chart n-sd --from 12,2 --to 150,12"},
  };
}

}  // namespace planner
