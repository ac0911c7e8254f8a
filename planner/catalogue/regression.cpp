#include "catalogue/regression.h"

#include <utility>

#include "catalogue/charts.h"
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

std::vector<Condition> Conditions() {
  return {
      {.code = "tested-predictors",
       .about = {"predictors", "tested"},
       .holds = [](const Inputs& in) { return TestedPredictors(in) <= Predictors(in); },
       .sentence = "{tested} must not exceed {predictors}."},
      {.code = "reduced-fit",
       .about = {"r-squared", "r-squared-reduced"},
       .holds = [](const Inputs& in) { return ReducedFit(in) <= in.Number("r-squared"); },
       .sentence =
           "{r-squared-reduced} must not exceed {r-squared}: predictors cannot explain less than some of them."},
      {.code = "reduced-model",
       .about = {"r-squared-reduced", "predictors"},
       .holds = [](const Inputs& in) { return ReducedFit(in) == 0 || TestedPredictors(in) < Predictors(in); },
       .sentence =
           "{r-squared-reduced} above 0 needs predictors that are not tested: give {tested}, below {predictors}."},
      {.code = "error-degrees",
       .about = {"predictors", "n"},
       .holds = [](const Inputs& in) { return in.Number("n") >= SmallestSize(in); },
       .sentence =
           "{n} leaves nothing to estimate the error variance from: it must exceed {predictors} by 2, or by 1 without "
           "an intercept."},
  };
}

std::vector<Condition> SizeExists() {
  return {
      {.code = "no-effect",
       .about = {"r-squared"},
       .holds = [](const Inputs& in) { return in.Number("r-squared") > ReducedFit(in); },
       .sentence = "The predictors tested explain nothing: without an effect, no sample size reaches the power."},
      {.code = "no-effect",
       .about = {"effect-f2"},
       .holds = [](const Inputs& in) { return in.Number("effect-f2") > 0; },
       .sentence = "The effect size is zero: without an effect, no sample size reaches the power."},
  };
}

}  // namespace

Test RegressionTest() {
  Test test{.name = "regression",
            .title = "F test of predictors in multiple linear regression",
            .about = "Tests whether some or all predictors of a multiple linear regression add nothing.",
            .counted = "cases"};
  test.parameters = Parameters();
  test.routes = RoutesOfRegression();
  test.conditions = Conditions();
  test.sizeExists = SizeExists();
  test.derived = {
      {.name = "effect-f2", .label = "effect size f2", .needs = {"r-squared", "predictors"}, .call = EffectOfFits},
  };
  test.charts = ChartsOfRegression();
  AddWordsOfRegression(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
