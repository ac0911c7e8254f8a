#include "catalogue/anova.h"

#include <utility>

#include "anova/overall.h"
#include "catalogue/charts.h"
#include "catalogue/group_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"

namespace planner {
namespace {

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
  test.conditions = {ErrorDegrees()};
  test.sizeExists = SizeExists();
  test.derived = {
      {.name = "rmsse",
       .label = "root-mean-square standardized effect",
       .needs = {"means", "sd"},
       .call =
           [](const Inputs& in) {
             return kelpower::anova::RootMeanSquareEffect(in.List("means"), in.Weights(), in.Number("sd"));
           }},
  };
  test.charts = ChartsOfAnova();
  AddWordsOfAnova(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
