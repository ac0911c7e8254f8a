#include "catalogue/anova.h"

#include <cmath>
#include <utility>

#include "anova/overall.h"
#include "catalogue/group_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/unknowns.h"
#include "catalogue/words.h"

namespace planner {
namespace {

namespace anova = kelpower::anova;

/// With the groups weighted by their shares (Cohen 1988, formula 8.2.1 and section 8.2.3).
double EffectFOfMeans(const Inputs& in) {
  return std::sqrt(anova::GroupSpread::Of(in.List("means"), in.Weights()).Noncentrality(in.Number("sd"), 1));
}

double EtaSquaredOfMeans(const Inputs& in) {
  const double f = EffectFOfMeans(in);
  return f * f / (1 + f * f);
}

bool MeansDiffer(const Inputs& in) {
  for (double mean : in.List("means")) {
    if (mean != in.List("means").front()) return true;
  }
  return false;
}

std::vector<Condition> SizeExists() {
  constexpr const char* noEffect = "The effect size is zero: without an effect, no sample size reaches the power.";
  return {
      {.code = "no-effect",
       .about = {"means"},
       .holds = MeansDiffer,
       .sentence = "The means are all equal: without an effect, no sample size reaches the power."},
      {.code = "no-effect",
       .about = {"effect-f"},
       .holds = [](const Inputs& in) { return in.Number("effect-f") > 0; },
       .sentence = noEffect},
      {.code = "no-effect",
       .about = {"eta-squared"},
       .holds = [](const Inputs& in) { return in.Number("eta-squared") > 0; },
       .sentence = noEffect},
  };
}

}  // namespace

Test AnovaTest() {
  Test test{.name = "anova",
            .title = "One-way analysis of variance: overall F test",
            .about = "Tests whether the means of several independent groups are all equal.",
            .groups = groupsFromInputs};
  test.parameters = {
      GroupMeans(), WithinSd(), EffectF(), EtaSquared(), GroupSizes(), AllocationRatios(), GroupCount(),
  };
  test.routes = RoutesOfAnova();
  test.unknowns = {UnknownEffect("effect-f"), UnknownEffect("eta-squared"), UnknownSd("sd"), UnknownSdOfInterval("sd")};
  test.conditions = {ErrorDegrees()};
  test.sizeExists = SizeExists();
  test.derived = {
      {.name = "effect-f", .label = "effect size f", .needs = {"means", "sd"}, .call = EffectFOfMeans},
      {.name = "eta-squared", .label = "eta squared", .needs = {"means", "sd"}, .call = EtaSquaredOfMeans},
  };
  AddWordsOfAnova(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
