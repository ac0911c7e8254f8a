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
      {"two-variances --sd 12,8 --n 40", ""},
      {"two-variances --variance-ratio 1.5 --power 0.8", ""},
      {"two-variances --variance-ratio 2 --power 0.9 --ratio 2 --one-sided", ""},
      {"two-variances --n 40,60 --power 0.8", ""},
  };
}

}  // namespace planner
