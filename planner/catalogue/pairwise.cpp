#include "catalogue/pairwise.h"

#include <algorithm>
#include <utility>

#include "catalogue/charts.h"
#include "catalogue/group_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"

namespace planner {
namespace {

std::vector<Parameter> Parameters() {
  return {
      List("pair", "groups compared", "numbers of the two groups compared").Length(2).Whole().AtLeast(1).AtMost(10000),
      GroupMeans(),
      WithinSd(),
      GroupSizes(),
      AllocationRatios(),
      GroupCount(),
      OneOf("adjust", "adjustment", "adjustment of the significance level for all pairs of groups",
            {{"bonferroni", 0, "with Bonferroni's adjustment for all pairs of groups"},
             {"sidak", 1, "with Sidak's adjustment for all pairs of groups"},
             {"none", 2, "without adjustment for other pairs of groups"}})
          .Default("bonferroni"),
  };
}

std::vector<Condition> Conditions() {
  return {
      {.code = "pair-differs",
       .about = {"pair"},
       .holds = [](const Inputs& in) { return in.List("pair")[0] != in.List("pair")[1]; },
       .sentence = "{pair} must name two different groups."},
      {.code = "pair-exists",
       .about = {"pair"},
       .holds = [](const Inputs& in) { return std::max(in.List("pair")[0], in.List("pair")[1]) <= in.Groups(); },
       .sentence = "{pair} names a group beyond the number of groups."},
      ErrorDegrees(),
  };
}

}  // namespace

Test PairwiseTest() {
  Test test{.name = "pairwise",
            .title = "One-way analysis of variance: pairwise difference",
            .about = "Tests whether two of the groups have equal means, at a level adjusted for all pairs of groups.",
            .groups = groupsFromInputs};
  test.parameters = Parameters();
  test.routes = RoutesOfPairwise();
  test.conditions = Conditions();
  test.sizeExists = {
      {.code = "no-effect",
       .about = {"means"},
       .holds = [](const Inputs& in) { return EffectOfPair(in) != 0; },
       .sentence = "The two means are equal: without a difference, no sample size reaches the power."},
  };
  test.derived = {
      {.name = "effect-d",
       .label = "standardized difference d",
       .needs = {"means", "sd", "pair"},
       .call = EffectOfPair},
  };
  test.charts = ChartsOfPairwise();
  AddWordsOfPairwise(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
