#include "catalogue/two_groups.h"

namespace planner {
namespace {

void DivideTotal(Inputs& in, const Inputs& design, double at) {
  const double total = TotalSize(design);
  in.SetEntry("n", 0, total / (1 + at));
  in.SetEntry("n", 1, total * at / (1 + at));
}

}  // namespace

Parameter RatioOfSizes() {
  return Number("ratio", "ratio of the sizes", "size of the second group over that of the first, in the sizes to find")
      .AtLeast(0.001)
      .AtMost(1000)
      .Default(1.0);
}

double DifferenceOfMeans(const Inputs& in) {
  return in.Has("means") ? in.List("means")[0] - in.List("means")[1] : in.Number("mean-difference");
}

double SizeRatio(const Inputs& in) { return in.List("n")[1] / in.List("n")[0]; }

Axis SizeRatioAxis() {
  return {.name = "ratio",
          .title = "ratio of the sizes (second group over first)",
          .symbol = "ratio",
          .needs = {"n"},
          .limits = {0.001, 1000, true, true, false},
          .design = SizeRatio,
          .vary = DivideTotal,
          .scale = [](const Inputs& in) -> Range {
            return {1 / (TotalSize(in) - 1), TotalSize(in) - 1};
          }};
}

}  // namespace planner
