#include "catalogue/details.h"
#include "catalogue/words.h"

namespace planner {

void AddWordsOfVariance(Test& test) {
  test.details = DetailsOfVariance;
  test.whenNot =
      "Not for populations that are not normal, however large the sample; the variances of two groups: see "
      "two-variances.";
  test.phrases = {
      {"effect",
       {{"variance-ratio", "a variance of {variance-ratio} times its null value"},
        {"sd", "a standard deviation of {sd} against {null-sd}"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the {one-sided?one-sided:two-sided} chi-square test of the variance of a normal population at a "
       "significance level of {alpha} has a power of {power} to detect {effect}."},
      {Question::SampleSize,
       "To detect {effect} with a power of {target-power}, the {one-sided?one-sided:two-sided} chi-square test of the "
       "variance of a normal population at a significance level of {alpha} needs {sizes}; its power is then {power}."},
  };
  test.examples = {
      {"variance --sd 12 --null-sd 10 --n 60", ""},
      {"variance --variance-ratio 1.5 --power 0.8 --one-sided", ""},
      {"variance --sd 8 --null-sd 10 --power 0.9", ""},
      {"variance --null-sd 10 --n 60 --power 0.8", ""},
  };
}

}  // namespace planner
