#include "catalogue/dunnett.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "catalogue/group_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/unknowns.h"

namespace planner {
namespace {

std::vector<Parameter> Parameters() {
  return {
      Number("group", "group compared",
             "number of the group whose difference from the control is to be found, from 2 on")
          .As(Role::Layout)
          .Whole()
          .AtLeast(2)
          .AtMost(10000),
      Flag("all-comparisons", "all comparisons", "the differences of all groups from the control are to be found"),
      PerGroup("means", "group means", "mean expected in each group, the control's first"),
      WithinSd(),
      Number("effect-d", "standardized difference d",
             "difference of each group's mean from the control's over the standard deviation")
          .Alias("d")
          .AtLeast(-1e6)
          .AtMost(1e6),
      PerGroup("n", "group sizes", "observations in each group, the control first")
          .Alias("group-sizes")
          .Spreads()
          .Whole()
          .AtLeast(1)
          .AtMost(1e9),
      PerGroup("ratios", "allocation ratios",
               "shares of the groups in the sizes to find, the control first, on any scale; default equal")
          .As(Role::Layout)
          .Spreads()
          .AtLeast(0.001)
          .AtMost(1000),
      GroupCount(),
      Flag("one-sided", "one-sided test", "test for means above the control's only"),
  };
}

std::string PowerFor(const Inputs& in) {
  if (in.Has("group")) return "the difference of group " + std::to_string(AskedGroup(in) + 1) + " from the control";
  if (in.Flag("all-comparisons")) return "the differences of all groups from the control";
  return "a difference of at least one group from the control";
}

/// A power looks for a critical value, whose integrals have the more nodes the larger a group is beside the control.
double StepsOfPower(const Inputs& in) {
  constexpr double stepsOfComparison = 5e4;
  const Numbers& sizes = in.List("n");
  const double largest = *std::max_element(sizes.begin(), sizes.end());
  const double comparisons = static_cast<double>(sizes.size() - 1);
  return stepsOfComparison * comparisons * (1 + std::sqrt(largest / sizes.front()) / 10);
}

}  // namespace

Test DunnettTest() {
  Test test{.name = "dunnett",
            .title = "One-way analysis of variance: Dunnett's test of groups against a control",
            .about = "Tests which groups differ in their means from a control, at one level for all comparisons.",
            .groups = groupsFromInputs};
  test.parameters = Parameters();
  test.routes = RoutesOfDunnett();
  test.unknowns = {UnknownEffectD(), UnknownSd("sd"), UnknownSdOfInterval("sd")};
  test.conditions = ConditionsOfDunnett();
  test.sizeExists = SizeExistsForDunnett();
  test.derived = {{.name = "effect-d",
                   .label = "standardized difference d",
                   .needs = {"means", "sd", "group"},
                   .call = EffectOfGroup}};
  test.assumptions = {{.name = "power-for", .label = "power to find", .needs = {"one-sided"}, .call = PowerFor}};
  test.steps = StepsOfPower;
  test.effect = DecidingEffect;
  test.offers.comparisons = false;  // the level is that of all comparisons together
  AddWordsOfDunnett(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
