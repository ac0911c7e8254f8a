#include <cmath>
#include <utility>

#include "catalogue/axes.h"
#include "catalogue/group_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"
#include "kelpower.h"

namespace planner {
namespace {

/// The coefficients with the last one set so that they sum to zero to the last digit, as the library wants them.
Numbers Coefficients(const Inputs& in) {
  Numbers coefficients = in.List("coefficients");
  double others = 0;
  for (std::size_t i = 0; i + 1 < coefficients.size(); ++i) others += coefficients[i];
  coefficients.back() = -others;
  return coefficients;
}

double EffectOfMeans(const Inputs& in) {
  return EffectSizeSC(in.Groups(), in.List("means").data(), in.Number("sd"), Coefficients(in).data());
}

double PowerOfMeans(const Inputs& in) {
  return PowerSC(in.Groups(), in.List("means").data(), in.Number("sd"), in.List("n").data(), Coefficients(in).data(),
                 in.Flag("one-sided"), in.Alpha());
}

double PowerOfEffect(const Inputs& in) {
  return PowerSCwES(in.Groups(), in.Number("effect-d"), in.List("n").data(), Coefficients(in).data(),
                    in.Flag("one-sided"), in.Alpha());
}

Numbers SizesOfMeans(const Inputs& in) {
  Numbers sizes;
  PowerReverseSC(in.Groups(), in.List("means").data(), in.Number("sd"), in.Weights().data(), Coefficients(in).data(),
                 in.Number("power"), sizes, in.Flag("one-sided"), in.Alpha());
  return sizes;
}

Numbers SizesOfEffect(const Inputs& in) {
  Numbers sizes;
  PowerReverseSCwES(in.Groups(), in.Number("effect-d"), in.Weights().data(), Coefficients(in).data(),
                    in.Number("power"), sizes, in.Flag("one-sided"), in.Alpha());
  return sizes;
}

double HalfWidth(const Inputs& in) {
  return HalfCISCTest(TotalSize(in), in.Groups(), in.List("n").data(), Coefficients(in).data(), in.Number("sd"),
                      in.Alpha());
}

Numbers SizesForHalfWidth(const Inputs& in) {
  Numbers sizes;
  PowerReversebyHalfCISCTest(in.Number("half-width"), in.Groups(), in.Weights().data(), Coefficients(in).data(),
                             in.Number("sd"), sizes, in.Alpha());
  return sizes;
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
       .value = PowerOfMeans},
      {.question = Question::Power,
       .needs = {"coefficients", "effect-d", "n"},
       .accepts = {"one-sided"},
       .exportName = "PowerSCwES",
       .value = PowerOfEffect},
      {.question = Question::SampleSize,
       .needs = {"coefficients", "means", "sd"},
       .accepts = {"ratios", "one-sided"},
       .exportName = "PowerReverseSC",
       .sizes = SizesOfMeans},
      {.question = Question::SampleSize,
       .needs = {"coefficients", "effect-d"},
       .accepts = {"ratios", "one-sided"},
       .exportName = "PowerReverseSCwES",
       .sizes = SizesOfEffect},
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

std::vector<Chart> Charts() {
  const Names ofMeans{"coefficients", "means", "sd", "n"};
  const Axis size = TotalSizeAxis();
  const Axis sd = WithinSdAxis();
  return {
      {.name = "n",
       .axes = {size},
       .needs = ofMeans,
       .accepts = {"one-sided"},
       .example = "contrast --coefficients -0.5,-0.5,1 --means 10,12,15 --sd 6 --n 20 --chart n"},
      {.name = "n",
       .axes = {WithUsual(size, AroundTotalSize)},
       .needs = {"coefficients", "effect-d", "n"},
       .accepts = {"one-sided"},
       .example = "contrast --coefficients 1,-1,0 --effect-d 0.5 --n 40 --chart n"},
      {.name = "sd",
       .axes = {sd},
       .needs = ofMeans,
       .accepts = {"one-sided"},
       .example = "contrast --coefficients -0.5,-0.5,1 --means 10,12,15 --sd 6 --n 20 --chart sd --from 2 --to 12"},
      {.name = "n-sd",
       .axes = {size, sd},
       .needs = ofMeans,
       .accepts = {"one-sided"},
       .example =
           "contrast --coefficients -0.5,-0.5,1 --means 10,12,15 --sd 6 --n 20 --chart n-sd --from 12,2 --to 150,12"},
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
  test.charts = Charts();
  AddWordsOfContrast(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
