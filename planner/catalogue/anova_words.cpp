#include "catalogue/details.h"
#include "catalogue/words.h"

namespace planner {

void AddWordsOfAnova(Test& test) {
  test.details = DetailsOfAnova;
  test.whenNot =
      "Not for several factors, see factorial; nor with covariates, see ancova; nor for repeated measures, see "
      "repeated-measures; nor for a single comparison of groups, see contrast and pairwise.";
  test.phrases = {
      {"effect",
       {{"means", "group means of {means} with a standard deviation of {sd} within the groups"},
        {"effect-f", "an effect size f of {effect-f}"},
        {"eta-squared", "an eta squared of {eta-squared}"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the overall F test of a one-way analysis of variance at a significance level of {alpha} has a "
       "power of {power} to detect {effect}."},
      {Question::SampleSize,
       "To detect {effect} with a power of {target-power}, the overall F test of a one-way analysis of variance at a "
       "significance level of {alpha} needs {sizes}; its power is then {power}."},
      {Question::HalfWidth,
       "With {sizes} and a standard deviation of {sd} within the groups, the {confidence} confidence interval of the "
       "grand mean has a half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For a {confidence} confidence interval of the grand mean with a half-width of at most {target-half-width}, at "
       "a standard deviation of {sd} within the groups, the study needs {sizes}; the half-width is then {half-width}."},
  };

  test.examples = {
      {"anova --means 10,12,15 --sd 6 --n 20,20,20",
       "With 20 observations in each of 3 groups (60 in total), the overall F test of a one-way analysis of variance "
       "at a significance level of 0.05 has a power of 0.6332 to detect group means of 10, 12 and 15 with a standard "
       "deviation of 6 within the groups."},
      {"anova --means 10,12,15 --sd 6 --power 0.9",
       "To detect group means of 10, 12 and 15 with a standard deviation of 6 within the groups with a power of 0.9, "
       "the overall F test of a one-way analysis of variance at a significance level of 0.05 needs 37 observations in "
       "each of 3 groups (111 in total); its power is then 0.9001."},
      {"anova --effect-f 0.25 --power 0.8 --ratios 2,1,1",
       "To detect an effect size f of 0.25 with a power of 0.8, the overall F test of a one-way analysis of variance "
       "at a significance level of 0.05 needs 79, 40 and 40 observations in 3 groups (159 in total); its power is then "
       "0.8049."},
      {"anova --sd 6 --n 20 --groups 3 --interval",
       "With 20 observations in each of 3 groups (60 in total) and a standard deviation of 6 within the groups, the "
       "95% confidence interval of the grand mean has a half-width of 1.551."},
      {"anova --sd 6 --half-width 1.5 --groups 3",
       "For a 95% confidence interval of the grand mean with a half-width of at most 1.5, at a standard deviation of 6 "
       "within the groups, the study needs 22 observations in each of 3 groups (66 in total); the half-width is then "
       "1.476."},
  };
}

}  // namespace planner
