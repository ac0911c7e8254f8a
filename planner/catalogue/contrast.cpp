#include "catalogue/contrast.h"

#include <utility>

#include "anova/contrast.h"
#include "catalogue/group_parameters.h"
#include "catalogue/offers.h"
#include "catalogue/tests.h"
#include "catalogue/unknowns.h"
#include "catalogue/words.h"

namespace planner {
namespace {

std::vector<Parameter> Parameters() {
  return {
      PerGroup("coefficients", "contrast coefficients", "weight of each group's mean; they sum to zero")
          .As(Role::Layout)
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

Numbers CoefficientsOfContrast(const Inputs& in) {
  Numbers coefficients = in.List("coefficients");
  double others = 0;
  for (std::size_t i = 0; i + 1 < coefficients.size(); ++i) others += coefficients[i];
  coefficients.back() = -others;
  return coefficients;
}

double EffectOfContrastedMeans(const Inputs& in) {
  return kelpower::anova::ContrastValue(CoefficientsOfContrast(in), in.List("means")) / in.Number("sd");
}

double EffectOfContrast(const Inputs& in) {
  return in.Has("effect-d") ? in.Number("effect-d") : EffectOfContrastedMeans(in);
}

Test ContrastTest() {
  Test test{.name = "contrast",
            .title = "One-way analysis of variance: specified contrast",
            .about = "Tests whether a weighted sum of group means, with weights that sum to zero, is zero.",
            .groups = groupsFromInputs};
  test.parameters = Parameters();
  test.routes = RoutesOfContrast();
  test.unknowns = {UnknownEffectD(), UnknownSd("sd"), UnknownSdOfInterval("sd")};
  test.conditions = ConditionsOfContrast();
  test.sizeExists = SizeExistsForContrast();
  test.derived = {
      {.name = "effect-d",
       .label = "standardized contrast d",
       .needs = {"means", "sd", "coefficients"},
       .call = EffectOfContrastedMeans},
  };
  test.offers = OffersOfContrast();
  test.effect = EffectOfContrast;
  AddWordsOfContrast(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
