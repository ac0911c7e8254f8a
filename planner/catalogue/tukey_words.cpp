#include "catalogue/tukey.h"

namespace planner {

void AddWordsOfTukey(Test& test) {
  test.details = DetailsOfTukey;
  test.whenNot =
      "Not for comparisons with a control alone: see dunnett; the question whether any means differ at all: see anova; a "
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
       "To find {power-for} with a power of {target-power}, at {effect}, {procedure} at a significance level of {alpha} "
       "for all pairs together needs {sizes}; its power is then {power}."},
      {Question::HalfWidth,
       "With {sizes} and a standard deviation of {sd} within the groups, the interval by {procedure} of the difference "
       "between groups {pair}, at a confidence of {confidence} for all pairs together, has a half-width of "
       "{half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For an interval by {procedure} of the difference between groups {pair}, at a confidence of {confidence} for all "
       "pairs together, with a half-width of at most {target-half-width}, at a standard deviation of {sd} within the "
       "groups, the study needs {sizes}; the half-width is then {half-width}."},
  };
  test.examples = {
      {"tukey --means 10,12,15 --sd 6 --n 20", ""},
      {"tukey --means 10,12,15 --sd 6 --pair 1,3 --n 20,20,30", ""},
      {"tukey --means 10,12,15 --sd 6 --power 0.8", ""},
      {"tukey --effect-d 0.5 --groups 4 --pair 1,2 --power 0.9", ""},
      {"tukey --sd 6 --pair 1,2 --groups 3 --n 20 --interval", ""},
      {"tukey --sd 6 --pair 1,2 --groups 3 --half-width 4", ""},
  };
}

}  // namespace planner
