#include "catalogue/axes.h"

#include <numeric>

namespace planner {

double TotalSize(const Inputs& in) {
  const Numbers& sizes = in.List("n");
  return std::accumulate(sizes.begin(), sizes.end(), 0.0);
}

Axis MeanDifferenceAxis() {
  return {.name = "difference",
          .title = "difference of the means (first minus second)",
          .symbol = "difference",
          .needs = {"means"},
          .design = [](const Inputs& in) { return in.List("means")[0] - in.List("means")[1]; },
          .vary = [](Inputs& in, const Inputs& design,
                     double at) { in.SetEntry("means", 0, design.List("means")[1] + at); }};
}

}  // namespace planner
