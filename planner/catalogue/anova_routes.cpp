#include "anova/overall.h"
#include "catalogue/anova.h"
#include "catalogue/axes.h"
#include "catalogue/core.h"

namespace planner {
namespace {

namespace anova = kelpower::anova;

double PowerOfMeans(const Inputs& in) {
  const auto spread = anova::GroupSpread::Of(in.List("means"), in.List("n"));
  return OrNaN(anova::PowerOfMeans(spread, in.Number("sd"), in.Groups(), TotalSize(in), in.Alpha()));
}

anova::EffectSize EffectOf(const Inputs& in) {
  if (in.Has("eta-squared")) return {.value = in.Number("eta-squared"), .isEtaSquared = true};
  return {.value = in.Number("effect-f"), .isEtaSquared = false};
}

double PowerOfEffect(const Inputs& in) {
  return OrNaN(anova::PowerOfEffect(EffectOf(in), in.Groups(), TotalSize(in), in.Alpha()));
}

Numbers SizesOfMeans(const Inputs& in) {
  const Numbers weights = in.Weights();
  return SpreadByShares(
      anova::TotalForPowerOfMeans(in.List("means"), in.Number("sd"), weights, in.Number("power"), in.Alpha()), weights);
}

Numbers SizesOfEffect(const Inputs& in) {
  return SpreadByShares(anova::TotalForPowerOfEffect(EffectOf(in), in.Groups(), in.Number("power"), in.Alpha()),
                        in.Weights());
}

double HalfWidth(const Inputs& in) {
  return anova::HalfWidthOfGrandMean(in.Groups(), TotalSize(in), in.Number("sd"), in.Alpha());
}

Numbers SizesForHalfWidth(const Inputs& in) {
  return SpreadByRatios(
      anova::TotalForHalfWidthOfGrandMean(in.Number("half-width"), in.Groups(), in.Number("sd"), in.Alpha()),
      in.Weights());
}

}  // namespace

std::vector<Route> RoutesOfAnova() {
  return {
      {.question = Question::Power,
       .needs = {"means", "sd", "n"},
       .accepts = {"groups"},
       .exportName = "PowerOverallTest",
       .value = PowerOfMeans},
      {.question = Question::Power,
       .needs = {"effect-f", "n"},
       .accepts = {"groups"},
       .exportName = "PowerOverallTestwES",
       .value = PowerOfEffect},
      {.question = Question::Power,
       .needs = {"eta-squared", "n"},
       .accepts = {"groups"},
       .exportName = "PowerOverallTestwES",
       .value = PowerOfEffect},
      {.question = Question::SampleSize,
       .needs = {"means", "sd"},
       .accepts = {"ratios", "groups"},
       .exportName = "PowerReverseOverallTest",
       .sizes = SizesOfMeans},
      {.question = Question::SampleSize,
       .needs = {"effect-f"},
       .accepts = {"ratios", "groups"},
       .exportName = "PowerReverseOverallTestwES",
       .sizes = SizesOfEffect},
      {.question = Question::SampleSize,
       .needs = {"eta-squared"},
       .accepts = {"ratios", "groups"},
       .exportName = "PowerReverseOverallTestwES",
       .sizes = SizesOfEffect},
      {.question = Question::HalfWidth,
       .needs = {"sd", "n"},
       .accepts = {"groups"},
       .exportName = "HalfCIOverallTest",
       .value = HalfWidth},
      {.question = Question::SampleSizeForHalfWidth,
       .needs = {"sd"},
       .accepts = {"ratios", "groups"},
       .exportName = "PowerReversebyHalfCIOverallTest",
       .sizes = SizesForHalfWidth},
  };
}

}  // namespace planner
