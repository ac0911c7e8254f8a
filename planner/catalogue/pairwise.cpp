#include "catalogue/pairwise.h"

#include <algorithm>
#include <utility>

#include "anova/contrast.h"
#include "catalogue/group_parameters.h"
#include "catalogue/mean_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/unknowns.h"
#include "catalogue/words.h"

namespace planner {
namespace {

namespace anova = kelpower::anova;

std::vector<Parameter> Parameters() {
  return {
      List("pair", "groups compared", "numbers of the two groups compared")
          .As(Role::Layout)
          .Length(2)
          .Whole()
          .AtLeast(1)
          .AtMost(10000),
      GroupMeans(),
      WithinSd(),
      Number("effect-d", "standardized difference d", "difference of the two means over the standard deviation")
          .Alias("d")
          .AtLeast(-1e6)
          .AtMost(1e6),
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
      PairDiffers(),
      PairExists(),
      ErrorDegrees(),
  };
}

}  // namespace

Numbers ContrastOfPair(const Inputs& in) {
  const auto [first, second] = std::minmax(in.List("pair")[0], in.List("pair")[1]);
  return anova::PairContrast(in.Groups(), static_cast<int>(first), static_cast<int>(second));
}

double EffectOfPair(const Inputs& in) {
  return anova::ContrastValue(ContrastOfPair(in), in.List("means")) / in.Number("sd");
}

double EffectOfPairwise(const Inputs& in) { return in.Has("effect-d") ? in.Number("effect-d") : EffectOfPair(in); }

double LevelOfPair(const Inputs& in) {
  return anova::AdjustedAlpha(anova::Adjustment(in.Choice("adjust")), in.Groups(), in.Alpha());
}

Test PairwiseTest() {
  Test test{.name = "pairwise",
            .title = "One-way analysis of variance: pairwise difference",
            .about = "Tests whether two of the groups have equal means, at a level adjusted for all pairs of groups.",
            .groups = groupsFromInputs};
  test.parameters = Parameters();
  test.routes = RoutesOfPairwise();
  test.unknowns = {UnknownEffectD(), UnknownSd("sd"), UnknownSdOfInterval("sd")};
  test.conditions = Conditions();
  test.sizeExists = {
      {.code = "no-effect",
       .about = {"means"},
       .holds = [](const Inputs& in) { return EffectOfPair(in) != 0; },
       .sentence = "The two means are equal: without a difference, no sample size reaches the power."},
      HasEffectD(),
  };
  test.derived = {
      {.name = "effect-d",
       .label = "standardized difference d",
       .needs = {"means", "sd", "pair"},
       .call = EffectOfPair},
  };
  test.derived.push_back({.name = "level-per-comparison",
                          .label = "significance level of the comparison",
                          .needs = {"adjust"},
                          .call = LevelOfPair});
  test.offers.comparisons = false;  // the pairs have an adjustment of their own
  AddWordsOfPairwise(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
