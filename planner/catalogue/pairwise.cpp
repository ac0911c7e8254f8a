#include <algorithm>
#include <utility>

#include "catalogue/axes.h"
#include "catalogue/group_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"
#include "kelpower.h"

namespace planner {
namespace {

// The library wants the smaller group number first; the test does not depend on the order.
int First(const Inputs& in) { return static_cast<int>(std::min(in.List("pair")[0], in.List("pair")[1])); }

int Second(const Inputs& in) { return static_cast<int>(std::max(in.List("pair")[0], in.List("pair")[1])); }

double EffectOfMeans(const Inputs& in) {
  return EffectSizePairwiseDiff(in.Groups(), in.List("means").data(), in.Number("sd"), nullptr, First(in), Second(in));
}

double PowerOfMeans(const Inputs& in) {
  return PowerPairwiseDiff(in.Groups(), in.List("means").data(), in.Number("sd"), in.List("n").data(), First(in),
                           Second(in), in.Choice("adjust"), in.Alpha());
}

Numbers SizesOfMeans(const Inputs& in) {
  Numbers sizes;
  PowerReversePairwiseDiff(in.Groups(), in.List("means").data(), in.Number("sd"), in.Weights().data(), First(in),
                           Second(in), in.Number("power"), sizes, in.Choice("adjust"), in.Alpha());
  return sizes;
}

double HalfWidth(const Inputs& in) {
  return HalfCIPairwiseDiff(TotalSize(in), in.Groups(), in.List("n").data(), First(in), Second(in), in.Number("sd"),
                            in.Choice("adjust"), in.Alpha());
}

Numbers SizesForHalfWidth(const Inputs& in) {
  Numbers sizes;
  PowerReversebyHalfCIPairwiseDiff(in.Number("half-width"), in.Groups(), in.Weights().data(), First(in), Second(in),
                                   in.Number("sd"), sizes, in.Choice("adjust"), in.Alpha());
  return sizes;
}

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

std::vector<Route> Routes() {
  return {
      {.question = Question::Power,
       .needs = {"pair", "means", "sd", "n"},
       .accepts = {"groups", "adjust"},
       .exportName = "PowerPairwiseDiff",
       .value = PowerOfMeans},
      {.question = Question::SampleSize,
       .needs = {"pair", "means", "sd"},
       .accepts = {"ratios", "groups", "adjust"},
       .exportName = "PowerReversePairwiseDiff",
       .sizes = SizesOfMeans},
      {.question = Question::HalfWidth,
       .needs = {"pair", "sd", "n"},
       .accepts = {"groups", "adjust"},
       .exportName = "HalfCIPairwiseDiff",
       .value = HalfWidth},
      {.question = Question::SampleSizeForHalfWidth,
       .needs = {"pair", "sd"},
       .accepts = {"ratios", "groups", "adjust"},
       .exportName = "PowerReversebyHalfCIPairwiseDiff",
       .sizes = SizesForHalfWidth},
  };
}

std::vector<Condition> Conditions() {
  return {
      {.code = "pair-differs",
       .about = {"pair"},
       .holds = [](const Inputs& in) { return First(in) < Second(in); },
       .sentence = "{pair} must name two different groups."},
      {.code = "pair-exists",
       .about = {"pair"},
       .holds = [](const Inputs& in) { return Second(in) <= in.Groups(); },
       .sentence = "{pair} names a group beyond the number of groups."},
      ErrorDegrees(),
  };
}

std::vector<Chart> Charts() {
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

}  // namespace

Test PairwiseTest() {
  Test test{.name = "pairwise",
            .title = "One-way analysis of variance: pairwise difference",
            .about = "Tests whether two of the groups have equal means, at a level adjusted for all pairs of groups.",
            .groups = groupsFromInputs};
  test.parameters = Parameters();
  test.routes = Routes();
  test.conditions = Conditions();
  test.sizeExists = {
      {.code = "no-effect",
       .about = {"means"},
       .holds = [](const Inputs& in) { return EffectOfMeans(in) != 0; },
       .sentence = "The two means are equal: without a difference, no sample size reaches the power."},
  };
  test.derived = {
      {.name = "effect-d",
       .label = "standardized difference d",
       .needs = {"means", "sd", "pair"},
       .call = EffectOfMeans},
  };
  test.charts = Charts();
  AddWordsOfPairwise(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
