#include <algorithm>
#include <utility>

#include "anova/contrast.h"
#include "catalogue/axes.h"
#include "catalogue/core.h"
#include "catalogue/group_parameters.h"
#include "catalogue/mean_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/unknowns.h"
#include "catalogue/words.h"

namespace planner {
namespace {

namespace anova = kelpower::anova;

/// The mean with the smaller number less the other one.
Numbers Contrast(const Inputs& in) {
  const auto [first, second] = std::minmax(in.List("pair")[0], in.List("pair")[1]);
  return anova::PairContrast(in.Groups(), static_cast<int>(first), static_cast<int>(second));
}

double EffectOfMeans(const Inputs& in) {
  return anova::ContrastValue(Contrast(in), in.List("means")) / in.Number("sd");
}

/// The level of the one comparison.
double Level(const Inputs& in) {
  return anova::AdjustedAlpha(anova::Adjustment(in.Choice("adjust")), in.Groups(), in.Alpha());
}

double EffectOf(const Inputs& in) { return in.Has("effect-d") ? in.Number("effect-d") : EffectOfMeans(in); }

constexpr bool oneSided = false;

double Power(const Inputs& in) {
  const Numbers contrast = Contrast(in);
  return OrNaN(anova::Power({contrast, in.List("n"), EffectOf(in), oneSided, Level(in)}, TotalSize(in)));
}

Numbers Sizes(const Inputs& in) {
  const Numbers contrast = Contrast(in);
  const Numbers weights = in.Weights();
  const anova::ContrastDesign design{contrast, weights, EffectOf(in), oneSided, Level(in)};
  return SpreadByShares(anova::TotalForPower(design, in.Number("power")), weights);
}

double HalfWidth(const Inputs& in) {
  const Numbers contrast = Contrast(in);
  return anova::HalfWidth({contrast, in.List("n"), in.Number("sd"), Level(in)}, TotalSize(in));
}

Numbers SizesForHalfWidth(const Inputs& in) {
  const Numbers contrast = Contrast(in);
  const Numbers weights = in.Weights();
  const anova::ContrastInterval interval{contrast, weights, in.Number("sd"), Level(in)};
  return SpreadByRatios(anova::TotalForHalfWidth(interval, in.Number("half-width")), weights);
}

std::vector<Parameter> Parameters() {
  return {
      List("pair", "groups compared", "numbers of the two groups compared").Length(2).Whole().AtLeast(1).AtMost(10000),
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

std::vector<Route> Routes() {
  return {
      {.question = Question::Power,
       .needs = {"pair", "means", "sd", "n"},
       .accepts = {"groups", "adjust"},
       .exportName = "PowerPairwiseDiff",
       .value = Power},
      {.question = Question::Power,
       .needs = {"pair", "effect-d", "n"},
       .accepts = {"groups", "adjust"},
       .exportName = "PowerSCwES",
       .value = Power},
      {.question = Question::SampleSize,
       .needs = {"pair", "effect-d"},
       .accepts = {"ratios", "groups", "adjust"},
       .exportName = "PowerReverseSCwES",
       .sizes = Sizes},
      {.question = Question::SampleSize,
       .needs = {"pair", "means", "sd"},
       .accepts = {"ratios", "groups", "adjust"},
       .exportName = "PowerReversePairwiseDiff",
       .sizes = Sizes},
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
  test.routes = Routes();
  test.unknowns = {UnknownEffectD(), UnknownSd("sd"), UnknownSdOfInterval("sd")};
  test.conditions = Conditions();
  test.sizeExists = {
      {.code = "no-effect",
       .about = {"means"},
       .holds = [](const Inputs& in) { return EffectOfMeans(in) != 0; },
       .sentence = "The two means are equal: without a difference, no sample size reaches the power."},
      HasEffectD(),
  };
  test.derived = {
      {.name = "effect-d",
       .label = "standardized difference d",
       .needs = {"means", "sd", "pair"},
       .call = EffectOfMeans},
  };
  test.derived.push_back({.name = "level-per-comparison",
                          .label = "significance level of the comparison",
                          .needs = {"adjust"},
                          .call = Level});
  test.offers.comparisons = false;  // the pairs have an adjustment of their own
  AddWordsOfPairwise(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
