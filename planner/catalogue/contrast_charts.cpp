#include "catalogue/axes.h"
#include "catalogue/charts.h"
#include "catalogue/group_parameters.h"

namespace planner {

std::vector<Chart> ChartsOfContrast() {
  const Names ofMeans{"coefficients", "means", "sd", "n"};
  const Axis size = TotalSizeAxis();
  const Axis sd = WithinSdAxis();
  return {
      {.name = "n",
       .axes = {size},
       .needs = ofMeans,
       .accepts = {"one-sided"},
       .example = "contrast --coefficients -0.5,-0.5,1 --means 10,12,15 --sd 6 --n 20 --chart n"},
      {.name = "n",
       .axes = {WithUsual(size, AroundTotalSize)},
       .needs = {"coefficients", "effect-d", "n"},
       .accepts = {"one-sided"},
       .example = "contrast --coefficients 1,-1,0 --effect-d 0.5 --n 40 --chart n"},
      {.name = "sd",
       .axes = {sd},
       .needs = ofMeans,
       .accepts = {"one-sided"},
       .example = "contrast --coefficients -0.5,-0.5,1 --means 10,12,15 --sd 6 --n 20 --chart sd --from 2 --to 12"},
      {.name = "n-sd",
       .axes = {size, sd},
       .needs = ofMeans,
       .accepts = {"one-sided"},
       .example =
           "contrast --coefficients -0.5,-0.5,1 --means 10,12,15 --sd 6 --n 20 --chart n-sd --from 12,2 --to 150,12"},
  };
}

}  // namespace planner
