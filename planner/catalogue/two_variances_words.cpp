#include "catalogue/details.h"
#include "catalogue/words.h"

namespace planner {

void AddWordsOfTwoVariances(Test& test) {
  test.details = DetailsOfTwoVariances;
  test.whenNot =
      "Not for populations that are not normal, however large the samples; one variance against a fixed value: see "
      "variance.";
  test.phrases = {
      {"effect",
       {{"variance-ratio", "a ratio of the variances (first over second) of {variance-ratio}"},
        {"sd", "standard deviations of {sd}"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the {one-sided?one-sided:two-sided} F test of two variances at a significance level of {alpha} has "
       "a power of {power} to detect {effect}."},
      {Question::SampleSize,
       "To detect {effect} with a power of {target-power}, the {one-sided?one-sided:two-sided} F test of two variances at "
       "a significance level of {alpha} needs {sizes}; its power is then {power}."},
  };
  test.examples = {
      {"two-variances --sd 12,8 --n 40",
       "With 40 observations in each of 2 groups (80 in total), the two-sided F test of two variances at a "
       "significance level of 0.05 has a power of 0.7052 to detect standard deviations of 12 and 8."},
      {"two-variances --variance-ratio 1.5 --power 0.8",
       "To detect a ratio of the variances (first over second) of 1.5 with a power of 0.8, the two-sided F test of "
       "two variances at a significance level of 0.05 needs 193 observations in each of 2 groups (386 in total); "
       "its power is then 0.8001."},
      {"two-variances --variance-ratio 2 --power 0.9 --ratio 2 --one-sided",
       "To detect a ratio of the variances (first over second) of 2 with a power of 0.9, the one-sided F test of "
       "two variances at a significance level of 0.05 needs 55 and 110 observations in 2 groups (165 in total); its "
       "power is then 0.9023."},
      {"two-variances --n 40,60 --power 0.8",
       "With 40 and 60 observations in 2 groups (100 in total), the two-sided F test of two variances at a "
       "significance level of 0.05 has a power of 0.8000 to detect a ratio of the variances (first over second) of "
       "2.264."},
  };
}

}  // namespace planner
