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
      {"variance --sd 12 --null-sd 10 --n 60",
       "With 60 observations, the two-sided chi-square test of the variance of a normal population at a "
       "significance level of 0.05 has a power of 0.5488 to detect a standard deviation of 12 against 10."},
      {"variance --variance-ratio 1.5 --power 0.8 --one-sided",
       "To detect a variance of 1.5 times its null value with a power of 0.8, the one-sided chi-square test of the "
       "variance of a normal population at a significance level of 0.05 needs 74 observations; its power is then "
       "0.8014."},
      {"variance --sd 8 --null-sd 10 --power 0.9",
       "To detect a standard deviation of 8 against 10 with a power of 0.9, the two-sided chi-square test of the "
       "variance of a normal population at a significance level of 0.05 needs 111 observations; its power is then "
       "0.9010."},
      {"variance --null-sd 10 --n 60 --power 0.8",
       "With 60 observations, the two-sided chi-square test of the variance of a normal population at a "
       "significance level of 0.05 has a power of 0.8000 to detect a standard deviation of 12.85 against 10."},
  };
}

}  // namespace planner
