#include "anova/contrast.h"
#include "catalogue/axes.h"
#include "catalogue/contrast.h"
#include "catalogue/core.h"

namespace planner {
namespace {

namespace anova = kelpower::anova;

/// The coefficients with the last one set so that they sum to zero to the last digit.
Numbers Coefficients(const Inputs& in) {
  Numbers coefficients = in.List("coefficients");
  double others = 0;
  for (std::size_t i = 0; i + 1 < coefficients.size(); ++i) others += coefficients[i];
  coefficients.back() = -others;
  return coefficients;
}

double Effect(const Inputs& in) { return in.Has("effect-d") ? in.Number("effect-d") : EffectOfContrast(in); }

double Power(const Inputs& in) {
  const Numbers coefficients = Coefficients(in);
  return OrNaN(anova::Power({coefficients, in.List("n"), Effect(in), in.Flag("one-sided"), in.Alpha()}, TotalSize(in)));
}

Numbers Sizes(const Inputs& in) {
  const Numbers coefficients = Coefficients(in);
  const Numbers weights = in.Weights();
  const anova::ContrastDesign design{coefficients, weights, Effect(in), in.Flag("one-sided"), in.Alpha()};
  return SpreadByShares(anova::TotalForPower(design, in.Number("power")), weights);
}

double HalfWidth(const Inputs& in) {
  const Numbers coefficients = Coefficients(in);
  return anova::HalfWidth({coefficients, in.List("n"), in.Number("sd"), in.Alpha()}, TotalSize(in));
}

Numbers SizesForHalfWidth(const Inputs& in) {
  const Numbers coefficients = Coefficients(in);
  const Numbers weights = in.Weights();
  const anova::ContrastInterval interval{coefficients, weights, in.Number("sd"), in.Alpha()};
  return SpreadByRatios(anova::TotalForHalfWidth(interval, in.Number("half-width")), weights);
}

}  // namespace

double EffectOfContrast(const Inputs& in) {
  return anova::ContrastValue(Coefficients(in), in.List("means")) / in.Number("sd");
}

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
