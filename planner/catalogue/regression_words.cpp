#include "catalogue/details.h"
#include "catalogue/words.h"

namespace planner {

void AddWordsOfRegression(Test& test) {
  test.details = DetailsOfRegression;
  test.whenNot =
      "Not for outcomes of two values, such as cured or not; the correlation with a single predictor: see pearson.";
  test.phrases = {
      {"effect",
       {{"r-squared-reduced", "an R squared of {r-squared} against {r-squared-reduced} without the predictors tested"},
        {"r-squared", "an R squared of {r-squared}"},
        {"effect-f2", "an effect size f2 of {effect-f2}"}}},
      {"which", {{"tested", "{tested} of the {predictors}"}, {"predictors", "all {predictors}"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the F test of {which} {random?random:fixed} predictors of a multiple linear regression "
       "{no-intercept?without:with} an intercept at a significance level of {alpha} has a power of {power} to detect "
       "{effect}."},
      {Question::SampleSize,
       "To detect {effect} with a power of {target-power}, the F test of {which} {random?random:fixed} predictors of a "
       "multiple linear regression {no-intercept?without:with} an intercept at a significance level of {alpha} needs "
       "{sizes}; its power is then {power}."},
  };

  test.examples = {
      {"regression --effect-f2 0.1111111 --predictors 5 --n 95",
       "With 95 cases, the F test of all 5 fixed predictors of a multiple linear regression with an intercept at a "
       "significance level of 0.05 has a power of 0.6736 to detect an effect size f2 of 0.1111111."},
      {"regression --r-squared 0.1 --predictors 5 --n 95 --random",
       "With 95 cases, the F test of all 5 random predictors of a multiple linear regression with an intercept at a "
       "significance level of 0.05 has a power of 0.6626 to detect an R squared of 0.1."},
      {"regression --r-squared 0.3 --r-squared-reduced 0.25 --predictors 6 --tested 2 --power 0.8",
       "To detect an R squared of 0.3 against 0.25 without the predictors tested with a power of 0.8, the F test of 2 "
       "of the 6 fixed predictors of a multiple linear regression with an intercept at a significance level of 0.05 "
       "needs 139 cases; its power is then 0.8030."},
      {"regression --effect-f2 0.0714286 --predictors 9 --tested 4 --alpha 0.01 --power 0.8",
       "To detect an effect size f2 of 0.0714286 with a power of 0.8, the F test of 4 of the 9 fixed predictors of a "
       "multiple linear regression with an intercept at a significance level of 0.01 needs 242 cases; its power is "
       "then 0.8016."},
  };
}

}  // namespace planner
