#include <string>

#include "catalogue/details.h"
#include "catalogue/words.h"

namespace planner {
namespace {

std::string AdjustedFor(const Inputs& in) {
  const int covariates = static_cast<int>(in.Number("covariates"));
  if (covariates == 0) return "no covariate";
  return std::to_string(covariates) + (covariates == 1 ? " covariate" : " covariates");
}

std::string Method(const Inputs& in) {
  if (in.Number("covariates") == 0) return "";
  return in.Flag("approximate") ? "approximate, as if the groups did not differ in the covariates"
                                : "exact for normally distributed covariates";
}

std::vector<Assumption> Assumptions() {
  return {
      {.name = "adjusted-for", .label = "adjusted for", .needs = {"covariates"}, .call = AdjustedFor},
      {.name = "method",
       .label = "method",
       .needs = {"covariates", "approximate"},
       .call = Method,
       .wording = " (<0>)"},
  };
}

}  // namespace

void AddWordsOfAncova(Test& test) {
  test.details = DetailsOfAncova;
  test.assumptions = Assumptions();
  test.whenNot =
      "Not for covariates of different slopes in the groups, nor for repeated measures, see repeated-measures; without "
      "covariates see anova.";
  test.phrases = {
      {"effect",
       {{"means", "adjusted group means of {means} with a standard deviation of {sd} within the groups"},
        {"effect-f", "an effect size f of {effect-f}"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the F test of the adjusted group means in an analysis of covariance with {adjusted-for}, an R "
       "squared of {r-squared} within the groups, at a significance level of {alpha} has a power of {power}{method} to "
       "detect {effect}."},
      {Question::SampleSize,
       "To detect {effect} with a power of {target-power}, the F test of the adjusted group means in an analysis of "
       "covariance with {adjusted-for}, an R squared of {r-squared} within the groups, at a significance level of "
       "{alpha} needs {sizes}; its power is then {power}{method}."},
  };
  test.examples = {
      {"ancova --means 400,450,500 --sd 120 --r-squared 0.3 --n 21",
       "With 21 observations in each of 3 groups (63 in total), the F test of the adjusted group means in an "
       "analysis of covariance with 1 covariate, an R squared of 0.3 within the groups, at a significance level "
       "of 0.05 has a power of 0.8042 (exact for normally distributed covariates) to detect adjusted group means "
       "of 400, 450 and 500 with a standard deviation of 120 within the groups."},
      {"ancova --means 400,450,500 --sd 120 --r-squared 0.3 --power 0.8",
       "To detect adjusted group means of 400, 450 and 500 with a standard deviation of 120 within the groups "
       "with a power of 0.8, the F test of the adjusted group means in an analysis of covariance with 1 "
       "covariate, an R squared of 0.3 within the groups, at a significance level of 0.05 needs 21 observations "
       "in each of 3 groups (63 in total); its power is then 0.8042 (exact for normally distributed covariates)."},
      {"ancova --effect-f 0.25 --groups 2 --covariates 3 --r-squared 0.4 --power 0.9 --ratios 2,1",
       "To detect an effect size f of 0.25 with a power of 0.9, the F test of the adjusted group means in an "
       "analysis of covariance with 3 covariates, an R squared of 0.4 within the groups, at a significance level "
       "of 0.05 needs 71 and 36 observations in 2 groups (107 in total); its power is then 0.9030 (exact for "
       "normally distributed covariates)."},
      {"ancova --effect-f 0.25 --groups 3 --covariates 2 --n 60 --approximate",
       "With 60 observations in each of 3 groups (180 in total), the F test of the adjusted group means in an "
       "analysis of covariance with 2 covariates, an R squared of 0 within the groups, at a significance level of"
       " 0.05 has a power of 0.8546 (approximate, as if the groups did not differ in the covariates) to detect an"
       " effect size f of 0.25."},
  };
}

}  // namespace planner
