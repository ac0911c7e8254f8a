#include "group_parameters.h"

#include "kelpower.h"

namespace planner {

const char* const noErrorDegrees =
    "--n leaves nothing to estimate the standard deviation from: at least one group needs 2 or more.";

Parameter GroupMeans() { return PerGroup("means", "group means", "mean expected in each group"); }

Parameter WithinSd() { return Number("sd", "standard deviation", "standard deviation within the groups").Above(0); }

Parameter GroupSizes() {
  return PerGroup("n", "group sizes", "observations in each group")
      .Alias("group-sizes")
      .Spreads()
      .Whole()
      .AtLeast(1)
      .AtMost(1e9);
}

Parameter AllocationRatios() {
  return PerGroup("ratios", "allocation ratios",
                  "shares of the groups in the sizes to find, on any scale; default equal")
      .Spreads()
      .AtLeast(0.001)
      .AtMost(1000);
}

Parameter GroupCount() {
  return Number("groups", "number of groups", "number of groups, where no list tells it")
      .Whole()
      .AtLeast(2)
      .AtMost(10000);
}

bool LeavesErrorDegrees(const Inputs& in) { return SampleSizeTotal(in.Groups(), in.List("n").data()) > in.Groups(); }

}  // namespace planner
