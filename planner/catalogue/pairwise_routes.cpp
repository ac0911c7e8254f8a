#include <algorithm>

#include "anova/contrast.h"
#include "catalogue/axes.h"
#include "catalogue/core.h"
#include "catalogue/pairwise.h"

namespace planner {
namespace {

namespace anova = kelpower::anova;

/// The mean with the smaller number less the other one.
Numbers Contrast(const Inputs& in) {
  const auto [first, second] = std::minmax(in.List("pair")[0], in.List("pair")[1]);
  return anova::PairContrast(in.Groups(), static_cast<int>(first), static_cast<int>(second));
}

/// The level of the one comparison.
double Level(const Inputs& in) {
  return anova::AdjustedAlpha(anova::Adjustment(in.Choice("adjust")), in.Groups(), in.Alpha());
}

constexpr bool oneSided = false;

double Power(const Inputs& in) {
  const Numbers contrast = Contrast(in);
  return OrNaN(anova::Power({contrast, in.List("n"), EffectOfPair(in), oneSided, Level(in)}, TotalSize(in)));
}

Numbers Sizes(const Inputs& in) {
  const Numbers contrast = Contrast(in);
  const Numbers weights = in.Weights();
  const anova::ContrastDesign design{contrast, weights, EffectOfPair(in), oneSided, Level(in)};
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

}  // namespace

double EffectOfPair(const Inputs& in) { return anova::ContrastValue(Contrast(in), in.List("means")) / in.Number("sd"); }

std::vector<Route> RoutesOfPairwise() {
  return {
      {.question = Question::Power,
       .needs = {"pair", "means", "sd", "n"},
       .accepts = {"groups", "adjust"},
       .exportName = "PowerPairwiseDiff",
       .value = Power},
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
