#include "catalogue/regression.h"

namespace planner {

std::vector<Condition> ConditionsOfRegression() {
  return {
      {.code = "tested-predictors",
       .about = {"predictors", "tested"},
       .holds = [](const Inputs& in) { return TestedPredictors(in) <= Predictors(in); },
       .sentence = "{tested} must not exceed {predictors}."},
      {.code = "reduced-missing",
       .about = {"r-squared", "tested", "predictors"},
       .holds = [](const Inputs& in) { return TestedPredictors(in) >= Predictors(in) || in.Has("r-squared-reduced"); },
       .sentence = "Also give {r-squared-reduced}, how much the predictors that are not tested explain: {tested} is "
                   "below {predictors}. It is 0 where they explain nothing."},
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

std::vector<Condition> SizeExistsForRegression() {
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

}  // namespace planner
