#include "catalogue/tukey.h"

namespace planner {

void AddWordsOfTukey(Test& test) {
  test.details = DetailsOfTukey;
  test.whenNot =
      "Not for comparisons with a control alone: see dunnett; the question whether any means differ at all: see "
      "anova; a "
      "single comparison that was planned beforehand: see contrast.";
  test.phrases = {
      {"effect",
       {{"means", "group means of {means} with a standard deviation of {sd} within the groups"},
        {"pair", "a standardized difference of {effect-d}"},
        {"effect-d", "two group means {effect-d} standard deviations apart and the others midway"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, {procedure} at a significance level of {alpha} for all pairs together has a power of {power} to "
       "find {power-for}, at {effect}."},
      {Question::SampleSize,
       "To find {power-for} with a power of {target-power}, at {effect}, {procedure} at a significance level of "
       "{alpha} "
       "for all pairs together needs {sizes}; its power is then {power}."},
      {Question::HalfWidth,
       "With {sizes} and a standard deviation of {sd} within the groups, the interval by {procedure} of the difference "
       "between groups {pair}, at a confidence of {confidence} for all pairs together, has a half-width of "
       "{half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For an interval by {procedure} of the difference between groups {pair}, at a confidence of {confidence} "
       "for all "
       "pairs together, with a half-width of at most {target-half-width}, at a standard deviation of {sd} within the "
       "groups, the study needs {sizes}; the half-width is then {half-width}."},
  };
  test.examples = {
      {"tukey --means 10,12,15 --sd 6 --n 20",
       "With 20 observations in each of 3 groups (60 in total), Tukey's test at a significance level of 0.05 for "
       "all pairs together has a power of 0.6315 to find a difference between at least one pair of groups, at "
       "group means of 10, 12 and 15 with a standard deviation of 6 within the groups."},
      {"tukey --means 10,12,15 --sd 6 --pair 1,3 --n 20,20,30",
       "With 20, 20 and 30 observations in 3 groups (70 in total), the Tukey-Kramer test at a significance level "
       "of 0.05 for all pairs together has a power of 0.6874 to find the difference between groups 1 and 3, at "
       "group means of 10, 12 and 15 with a standard deviation of 6 within the groups."},
      {"tukey --means 10,12,15 --sd 6 --power 0.8",
       "To find a difference between at least one pair of groups with a power of 0.8, at group means of 10, 12 and "
       "15 with a standard deviation of 6 within the groups, Tukey's test at a significance level of 0.05 for all "
       "pairs together needs 29 observations in each of 3 groups (87 in total); its power is then 0.8080."},
      {"tukey --effect-d 0.5 --groups 4 --pair 1,2 --power 0.9",
       "To find the difference between groups 1 and 2 with a power of 0.9, at a standardized difference of 0.5, "
       "Tukey's test at a significance level of 0.05 for all pairs together needs 120 observations in each of 4 "
       "groups (480 in total); its power is then 0.9018."},
      {"tukey --sd 6 --pair 1,2 --groups 3 --n 20 --interval",
       "With 20 observations in each of 3 groups (60 in total) and a standard deviation of 6 within the groups, "
       "the interval by Tukey's test of the difference between groups 1 and 2, at a confidence of 95% for all "
       "pairs together, has a half-width of 4.566."},
      {"tukey --sd 6 --pair 1,2 --groups 3 --half-width 4",
       "For an interval by Tukey's test of the difference between groups 1 and 2, at a confidence of 95% for all "
       "pairs together, with a half-width of at most 4, at a standard deviation of 6 within the groups, the study "
       "needs 26 observations in each of 3 groups (78 in total); the half-width is then 3.979."},
  };
}

}  // namespace planner
