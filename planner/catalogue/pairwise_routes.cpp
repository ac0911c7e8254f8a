#include "anova/contrast.h"
#include "catalogue/axes.h"
#include "catalogue/core.h"
#include "catalogue/pairwise.h"

namespace planner {
namespace {

namespace anova = kelpower::anova;

constexpr bool oneSided = false;

double Power(const Inputs& in) {
  const Numbers contrast = ContrastOfPair(in);
  return OrNaN(anova::Power({contrast, in.List("n"), EffectOfPairwise(in), oneSided, LevelOfPair(in)}, TotalSize(in)));
}

Numbers Sizes(const Inputs& in) {
  const Numbers contrast = ContrastOfPair(in);
  const Numbers weights = in.Weights();
  const anova::ContrastDesign design{contrast, weights, EffectOfPairwise(in), oneSided, LevelOfPair(in)};
  return SpreadByShares(anova::TotalForPower(design, in.Number("power")), weights);
}

double HalfWidth(const Inputs& in) {
  const Numbers contrast = ContrastOfPair(in);
  return anova::HalfWidth({contrast, in.List("n"), in.Number("sd"), LevelOfPair(in)}, TotalSize(in));
}

Numbers SizesForHalfWidth(const Inputs& in) {
  const Numbers contrast = ContrastOfPair(in);
  const Numbers weights = in.Weights();
  const anova::ContrastInterval interval{contrast, weights, in.Number("sd"), LevelOfPair(in)};
  return SpreadByRatios(anova::TotalForHalfWidth(interval, in.Number("half-width")), weights);
}

}  // namespace

std::vector<Route> RoutesOfPairwise() {
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

}  // namespace planner
