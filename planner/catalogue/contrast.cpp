#include "catalogue/contrast.h"

#include <cmath>
#include <utility>

#include "catalogue/charts.h"
#include "catalogue/group_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"

namespace planner {
namespace {

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

std::vector<Condition> SizeExists() {
  return {
      {.code = "no-effect",
       .about = {"means"},
       .holds = [](const Inputs& in) { return EffectOfContrast(in) != 0; },
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
  test.routes = RoutesOfContrast();
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
       .call = EffectOfContrast},
  };
  test.charts = ChartsOfContrast();
  AddWordsOfContrast(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
