#include "anova/contrast.h"
#include "catalogue/axes.h"
#include "catalogue/contrast.h"
#include "catalogue/core.h"

namespace planner {
namespace {

namespace anova = kelpower::anova;

double Power(const Inputs& in) {
  const Numbers coefficients = CoefficientsOfContrast(in);
  return OrNaN(anova::Power({coefficients, in.List("n"), EffectOfContrast(in), in.Flag("one-sided"), in.Alpha()},
                            TotalSize(in)));
}

Numbers Sizes(const Inputs& in) {
  const Numbers coefficients = CoefficientsOfContrast(in);
  const Numbers weights = in.Weights();
  const anova::ContrastDesign design{coefficients, weights, EffectOfContrast(in), in.Flag("one-sided"), in.Alpha()};
  return SpreadByShares(anova::TotalForPower(design, in.Number("power")), weights);
}

double HalfWidth(const Inputs& in) {
  const Numbers coefficients = CoefficientsOfContrast(in);
  return anova::HalfWidth({coefficients, in.List("n"), in.Number("sd"), in.Alpha()}, TotalSize(in));
}

Numbers SizesForHalfWidth(const Inputs& in) {
  const Numbers coefficients = CoefficientsOfContrast(in);
  const Numbers weights = in.Weights();
  const anova::ContrastInterval interval{coefficients, weights, in.Number("sd"), in.Alpha()};
  return SpreadByRatios(anova::TotalForHalfWidth(interval, in.Number("half-width")), weights);
}

}  // namespace

std::vector<Route> RoutesOfContrast() {
  return {
      {.question = Question::Power,
       .needs = {"coefficients", "means", "sd", "n"},
       .accepts = {"one-sided"},
       .exportName = "PowerSC",
       .value = Power},
      {.question = Question::Power,
       .needs = {"coefficients", "effect-d", "n"},
       .accepts = {"one-sided"},
       .exportName = "PowerSCwES",
       .value = Power},
      {.question = Question::SampleSize,
       .needs = {"coefficients", "means", "sd"},
       .accepts = {"ratios", "one-sided"},
       .exportName = "PowerReverseSC",
       .sizes = Sizes},
      {.question = Question::SampleSize,
       .needs = {"coefficients", "effect-d"},
       .accepts = {"ratios", "one-sided"},
       .exportName = "PowerReverseSCwES",
       .sizes = Sizes},
      {.question = Question::HalfWidth,
       .needs = {"coefficients", "sd", "n"},
       .exportName = "HalfCISCTest",
       .value = HalfWidth},
      {.question = Question::SampleSizeForHalfWidth,
       .needs = {"coefficients", "sd"},
       .accepts = {"ratios"},
       .exportName = "PowerReversebyHalfCISCTest",
       .sizes = SizesForHalfWidth},
  };
}

}  // namespace planner
