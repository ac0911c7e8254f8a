#include "anova/contrast.h"

#include <cmath>
#include <utility>

#include "catalogue/axes.h"
#include "catalogue/core.h"
#include "catalogue/group_parameters.h"
#include "catalogue/offers.h"
#include "catalogue/tests.h"
#include "catalogue/unknowns.h"
#include "catalogue/words.h"

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

double EffectOfMeans(const Inputs& in) {
  return anova::ContrastValue(Coefficients(in), in.List("means")) / in.Number("sd");
}

double Effect(const Inputs& in) { return in.Has("effect-d") ? in.Number("effect-d") : EffectOfMeans(in); }

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

bool SumToZero(const Inputs& in) {
  constexpr double typingError = 1e-6;  // allows thirds typed with seven digits
  double sum = 0;
  double size = 0;
  for (double coefficient : in.List("coefficients")) {
    sum += coefficient;
    size += std::abs(coefficient);
  }
  return size > 0 && std::abs(sum) <= typingError * size;
}

std::vector<Route> Routes() {
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

std::vector<Condition> SizeExists() {
  return {
      {.code = "no-effect",
       .about = {"means"},
       .holds = [](const Inputs& in) { return EffectOfMeans(in) != 0; },
       .sentence = "The contrast of the means is zero: without an effect, no sample size reaches the power."},
      {.code = "no-effect",
       .about = {"effect-d"},
       .holds = [](const Inputs& in) { return in.Number("effect-d") != 0; },
       .sentence = "The effect size is zero: without an effect, no sample size reaches the power."},
  };
}

std::vector<Parameter> Parameters() {
  return {
      PerGroup("coefficients", "contrast coefficients", "weight of each group's mean; they sum to zero")
          .AtLeast(-1e6)
          .AtMost(1e6),
      GroupMeans(),
      WithinSd(),
      Number("effect-d", "standardized contrast d", "contrast of the means over the standard deviation")
          .Alias("d")
          .AtLeast(-1e6)
          .AtMost(1e6),
      GroupSizes(),
      AllocationRatios(),
      Flag("one-sided", "one-sided test", "test in the direction of the contrast only"),
  };
}

}  // namespace

Test ContrastTest() {
  Test test{.name = "contrast",
            .title = "One-way analysis of variance: specified contrast",
            .about = "Tests whether a weighted sum of group means, with weights that sum to zero, is zero.",
            .groups = groupsFromInputs};
  test.parameters = Parameters();
  test.routes = Routes();
  test.unknowns = {UnknownEffectD(), UnknownSd("sd"), UnknownSdOfInterval("sd")};
  test.conditions = {
      {.code = "coefficients-sum",
       .about = {"coefficients"},
       .holds = SumToZero,
       .sentence = "{coefficients} must sum to zero, and must not all be zero."},
      ErrorDegrees(),
  };
  test.sizeExists = SizeExists();
  test.derived = {
      {.name = "effect-d",
       .label = "standardized contrast d",
       .needs = {"means", "sd", "coefficients"},
       .call = EffectOfMeans},
  };
  test.offers = OffersOfContrast();
  test.effect = [](const Inputs& in) { return in.Has("effect-d") ? in.Number("effect-d") : EffectOfMeans(in); };
  AddWordsOfContrast(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
