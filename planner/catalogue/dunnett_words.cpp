#include "catalogue/dunnett.h"

namespace planner {

void AddWordsOfDunnett(Test& test) {
  test.details = DetailsOfDunnett;
  test.whenNot =
      "Not for all pairs of groups: see tukey; a single comparison that was planned beforehand: see contrast; two "
      "groups "
      "alone: see two-means.";
  test.phrases = {
      {"effect",
       {{"means", "group means of {means}, the control's first, with a standard deviation of {sd} within the groups"},
        {"group", "a standardized difference of {effect-d}"},
        {"effect-d", "a standardized difference of {effect-d} of each group from the control"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the control first, Dunnett's {one-sided?one-sided:two-sided} test at a significance level of "
       "{alpha} for all comparisons together has a power of {power} to find {power-for}, at {effect}."},
      {Question::SampleSize,
       "To find {power-for} with a power of {target-power}, at {effect}, Dunnett's {one-sided?one-sided:two-sided} "
       "test "
       "at a significance level of {alpha} for all comparisons together needs {sizes}, the control first; its power is "
       "then {power}."},
      {Question::HalfWidth,
       "With {sizes}, the control first, and a standard deviation of {sd} within the groups, Dunnett's interval of the "
       "difference of group {group} from the control, at a confidence of {confidence} for all comparisons "
       "together, has "
       "a half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For Dunnett's interval of the difference of group {group} from the control, at a confidence of "
       "{confidence} for "
       "all comparisons together, with a half-width of at most {target-half-width}, at a standard deviation of {sd} "
       "within the groups, the study needs {sizes}, the control first; the half-width is then {half-width}."},
  };
  test.examples = {
      {"dunnett --means 10,12,15 --sd 6 --n 20",
       "With 20 observations in each of 3 groups (60 in total), the control first, Dunnett's two-sided test at a "
       "significance level of 0.05 for all comparisons together has a power of 0.6539 to find a difference of at "
       "least one group from the control, at group means of 10, 12 and 15, the control's first, with a standard "
       "deviation of 6 within the groups."},
      {"dunnett --means 10,13,15 --sd 6 --n 30,20,20 --all-comparisons --one-sided",
       "With 30, 20 and 20 observations in 3 groups (70 in total), the control first, Dunnett's one-sided test at "
       "a significance level of 0.05 for all comparisons together has a power of 0.3799 to find the differences of "
       "all groups from the control, at group means of 10, 13 and 15, the control's first, with a standard "
       "deviation of 6 within the groups."},
      {"dunnett --means 10,12,15 --sd 6 --power 0.8",
       "To find a difference of at least one group from the control with a power of 0.8, at group means of 10, 12 "
       "and 15, the control's first, with a standard deviation of 6 within the groups, Dunnett's two-sided test at "
       "a significance level of 0.05 for all comparisons together needs 28 observations in each of 3 groups (84 in "
       "total), the control first; its power is then 0.8106."},
      {"dunnett --effect-d 0.6 --groups 4 --group 2 --power 0.9 --ratios 2,1,1,1",
       "To find the difference of group 2 from the control with a power of 0.9, at a standardized difference of "
       "0.6, Dunnett's two-sided test at a significance level of 0.05 for all comparisons together needs 113, 57, "
       "57 and 57 observations in 4 groups (284 in total), the control first; its power is then 0.9038."},
      {"dunnett --sd 6 --group 2 --groups 3 --n 20 --interval",
       "With 20 observations in each of 3 groups (60 in total), the control first, and a standard deviation of 6 "
       "within the groups, Dunnett's interval of the difference of group 2 from the control, at a confidence of "
       "95% for all comparisons together, has a half-width of 4.303."},
      {"dunnett --sd 6 --group 2 --groups 3 --half-width 4",
       "For Dunnett's interval of the difference of group 2 from the control, at a confidence of 95% for all "
       "comparisons together, with a half-width of at most 4, at a standard deviation of 6 within the groups, the "
       "study needs 23 observations in each of 3 groups (69 in total), the control first; the half-width is then "
       "3.999."},
  };
}

}  // namespace planner
