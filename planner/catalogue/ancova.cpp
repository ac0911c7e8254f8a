#include "catalogue/ancova.h"

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

/// In units of the standard deviation before the covariates have explained anything.
double EffectFOfMeans(const Inputs& in) {
  return std::sqrt(anova::GroupSpread::Of(in.List("means"), in.Weights()).Noncentrality(in.Number("sd"), 1));
}

double PartialEtaSquared(const Inputs& in) {
  const double f = EffectFOfMeans(in);
  return f * f / (1 - in.Number("r-squared") + f * f);
}

std::vector<Parameter> Parameters() {
  return {
      PerGroup("means", "adjusted group means", "mean expected in each group at the same values of the covariates"),
      Number("sd", "standard deviation",
             "standard deviation within the groups, before the covariates have explained any")
          .Above(0),
      Number("effect-f", "effect size f", "standard deviation of the adjusted group means over sd")
          .Alias("f")
          .AtLeast(0)
          .AtMost(1e6),
      Number("covariates", "covariates", "number of covariates").Whole().AtLeast(0).AtMost(1000).Default(1.0),
      Number("r-squared", "R squared of the covariates",
             "share of the variance within the groups that the covariates explain; 0 where sd is the residual one")
          .AtLeast(0)
          .Below(1)
          .Default(0.0),
      GroupSizes(),
      AllocationRatios(),
      GroupCount(),
      Flag("approximate", "approximate",
           "as if the groups did not differ in the covariates: the power is a little less"),
  };
}

std::vector<Condition> SizeExists() {
  return {
      {.code = "no-effect",
       .about = {"means"},
       .holds = [](const Inputs& in) { return EffectFOfMeans(in) > 0; },
       .sentence = "The means are all equal: without an effect, no sample size reaches the power."},
      {.code = "no-effect",
       .about = {"effect-f"},
       .holds = [](const Inputs& in) { return in.Number("effect-f") > 0; },
       .sentence = "The effect size is zero: without an effect, no sample size reaches the power."},
  };
}

Unknown UnknownExplained() {
  return {.input = "r-squared",
          .target = Question::Power,
          .trend = Trend::Rises,
          .reason = "what the covariates explain is taken out of the variance"};
}

}  // namespace

Test AncovaTest() {
  Test test{.name = "ancova",
            .title = "Analysis of covariance: F test of the adjusted group means",
            .about = "Tests whether the means of several groups are equal once covariates are accounted for.",
            .groups = groupsFromInputs};
  test.parameters = Parameters();
  test.routes = RoutesOfAncova();
  test.unknowns = {UnknownEffect("effect-f"), UnknownSd("sd"), UnknownExplained()};
  test.conditions = ConditionsOfAncova();
  test.sizeExists = SizeExists();
  test.derived = {
      {.name = "effect-f", .label = "effect size f", .needs = {"means", "sd"}, .call = EffectFOfMeans},
      {.name = "eta-squared", .label = "partial eta squared", .needs = {"means", "sd"}, .call = PartialEtaSquared},
  };
  AddWordsOfAncova(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
