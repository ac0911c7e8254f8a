#include <cmath>

#include "catalogue/contrast.h"
#include "catalogue/group_parameters.h"

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

}  // namespace

std::vector<Condition> ConditionsOfContrast() {
  return {
      {.code = "coefficients-sum",
       .about = {"coefficients"},
       .holds = SumToZero,
       .sentence = "{coefficients} must sum to zero, and must not all be zero."},
      ErrorDegrees(),
  };
}

std::vector<Condition> SizeExistsForContrast() {
  return {
      {.code = "no-effect",
       .about = {"means"},
       .holds = [](const Inputs& in) { return EffectOfContrastedMeans(in) != 0; },
       .sentence = "The contrast of the means is zero: without an effect, no sample size reaches the power."},
      {.code = "no-effect",
       .about = {"effect-d"},
       .holds = [](const Inputs& in) { return in.Number("effect-d") != 0; },
       .sentence = "The effect size is zero: without an effect, no sample size reaches the power."},
  };
}

}  // namespace planner
