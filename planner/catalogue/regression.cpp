#include "catalogue/regression.h"

#include <cmath>
#include <utility>

#include "catalogue/correlation_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"

namespace planner {
namespace {

double EffectOfFits(const Inputs& in) {
  return (in.Number("r-squared") - ReducedFit(in)) / (1 - in.Number("r-squared"));
}

std::vector<Parameter> Parameters() {
  return {
      Number("r-squared", "R squared", "proportion of variance that all predictors explain").AtLeast(0).Below(1),
      Number("r-squared-reduced", "R squared without those tested",
             "proportion of variance that the predictors that are not tested explain")
          .AtLeast(0)
          .Below(1),
      Number("effect-f2", "effect size f2", "variance explained by the tested predictors over the unexplained one")
          .Alias("f2")
          .AtLeast(0)
          .AtMost(1e3),
      Number("predictors", "predictors", "number of predictors in the model").Whole().AtLeast(1).AtMost(mostPredictors),
      Number("tested", "predictors tested", "number of predictors tested, unless all are")
          .Whole()
          .AtLeast(1)
          .AtMost(mostPredictors),
      CaseCount(2),
      Flag("random", "random predictors", "predictors vary from sample to sample, normally, rather than being fixed"),
      Flag("no-intercept", "without intercept", "the model has no intercept"),
  };
}

Axis MultipleCorrelationAxis() {
  return {.name = "r",
          .title = "multiple correlation R",
          .symbol = "R",
          .needs = {"r-squared"},
          .limits = {0, 1, true, false, false},
          .design = [](const Inputs& in) { return std::sqrt(in.Number("r-squared")); },
          .vary = [](Inputs& in, const Inputs&, double at) { in.Set("r-squared", at * at); }};
}

}  // namespace

Test RegressionTest() {
  Test test{.name = "regression",
            .title = "F test of predictors in multiple linear regression",
            .about = "Tests whether some or all predictors of a multiple linear regression add nothing.",
            .counted = "cases"};
  test.parameters = Parameters();
  test.routes = RoutesOfRegression();
  test.unknowns = UnknownsOfRegression();
  test.conditions = ConditionsOfRegression();
  test.sizeExists = SizeExistsForRegression();
  test.derived = {
      {.name = "effect-f2", .label = "effect size f2", .needs = {"r-squared", "predictors"}, .call = EffectOfFits},
  };
  test.axes = {MultipleCorrelationAxis()};
  AddWordsOfRegression(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
