#include "catalogue/group_parameters.h"

#include <algorithm>

#include "catalogue/axes.h"

namespace planner {
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
      .As(Role::Layout)
      .Spreads()
      .AtLeast(0.001)
      .AtMost(1000);
}

Parameter GroupCount() {
  return Number("groups", "number of groups", "number of groups, where no list tells it")
      .As(Role::Shape)
      .Whole()
      .AtLeast(2)
      .AtMost(10000);
}

Parameter EffectF() {
  return Number("effect-f", "effect size f", "standard deviation of the group means over that within the groups")
      .Alias("f")
      .AtLeast(0)
      .AtMost(1e6);
}

Parameter EtaSquared() {
  return Number("eta-squared", "eta squared", "proportion of variance explained by the groups").AtLeast(0).Below(1);
}

Condition PairDiffers() {
  return {.code = "pair-differs",
          .about = {"pair"},
          .holds = [](const Inputs& in) { return in.List("pair")[0] != in.List("pair")[1]; },
          .sentence = "{pair} must name two different groups."};
}

Condition PairExists() {
  return {.code = "pair-exists",
          .about = {"pair"},
          .holds = [](const Inputs& in) { return std::max(in.List("pair")[0], in.List("pair")[1]) <= in.Groups(); },
          .sentence = "{pair} names a group beyond the number of groups."};
}

Condition ErrorDegrees() {
  return {
      .code = "error-degrees",
      .about = {"n"},
      .holds = [](const Inputs& in) { return TotalSize(in) > in.Groups(); },
      .sentence = "{n} leaves nothing to estimate the standard deviation from: at least one group needs 2 or more."};
}

}  // namespace planner
