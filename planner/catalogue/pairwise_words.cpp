#include "catalogue/details.h"
#include "catalogue/words.h"

namespace planner {

void AddWordsOfPairwise(Test& test) {
  test.details = DetailsOfPairwise;
  test.whenNot =
      "Not for a single comparison that was planned beforehand: see contrast; two groups alone: see two-means.";
  test.phrases = {
      {"effect",
       {{"means", "group means of {means} with a standard deviation of {sd} within the groups"},
        {"effect-d", "a standardized difference of {effect-d}"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the test of the difference between groups {pair} at a significance level of {alpha} {adjust} has "
       "a power of {power} to detect {effect}."},
      {Question::SampleSize,
       "To detect {effect} with a power of {target-power}, the test of the difference between groups {pair} at a "
       "significance level of {alpha} {adjust} needs {sizes}; its power is then {power}."},
      {Question::HalfWidth,
       "With {sizes} and a standard deviation of {sd} within the groups, the {confidence} confidence interval of the "
       "difference between groups {pair} {adjust} has a half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For a {confidence} confidence interval of the difference between groups {pair} {adjust} with a half-width of "
       "at most {target-half-width}, at a standard deviation of {sd} within the groups, the study needs {sizes}; the "
       "half-width is then {half-width}."},
  };

  test.examples = {
      {"pairwise --pair 1,3 --means 10,12,15 --sd 6 --n 20",
       "With 20 observations in each of 3 groups (60 in total), the test of the difference between groups 1 and 3 at a "
       "significance level of 0.05 with Bonferroni's adjustment for all pairs of groups has a power of 0.5694 to "
       "detect group means of 10, 12 and 15 with a standard deviation of 6 within the groups."},
      {"pairwise --pair 1,3 --means 10,12,15 --sd 6 --power 0.9 --adjust sidak",
       "To detect group means of 10, 12 and 15 with a standard deviation of 6 within the groups with a power of 0.9, "
       "the test of the difference between groups 1 and 3 at a significance level of 0.05 with Sidak's adjustment for "
       "all pairs of groups needs 40 observations in each of 3 groups (120 in total); its power is then 0.9021."},
      {"pairwise --pair 1,2 --groups 3 --sd 6 --n 20 --interval",
       "With 20 observations in each of 3 groups (60 in total) and a standard deviation of 6 within the groups, the "
       "95% confidence interval of the difference between groups 1 and 2 with Bonferroni's adjustment for all pairs of "
       "groups has a half-width of 4.68."},
      {"pairwise --pair 1,2 --groups 3 --sd 6 --half-width 4 --adjust none",
       "For a 95% confidence interval of the difference between groups 1 and 2 without adjustment for other pairs of "
       "groups with a half-width of at most 4, at a standard deviation of 6 within the groups, the study needs 19 "
       "observations in each of 3 groups (57 in total); the half-width is then 3.903."},
  };
}

}  // namespace planner
