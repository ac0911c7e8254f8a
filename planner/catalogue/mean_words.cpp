#include "catalogue/details.h"
#include "catalogue/margins.h"
#include "catalogue/words.h"

namespace planner {

void AddWordsOfMean(Test& test) {
  test.details = DetailsOfMean;
  test.whenNot = "Not for two groups: see two-means; two measurements on the same units: see paired-means.";
  test.phrases = {
      {"effect",
       {{"mean", "a mean of {mean} against {test-value} with a standard deviation of {sd}"},
        {"effect-d", "an effect size d of {effect-d}"}}},
  };
  AddPhrasesOfMargins(test, "one-sample t test", "one-sample t tests");
  test.sentences = {
      {Question::Power,
       "With {sizes}, the {procedure} at a significance level of {alpha} has a power of {power} to {aim}."},
      {Question::SampleSize,
       "To {aim}{comma} with a power of {target-power}, the {procedure} at a significance level of {alpha} needs {sizes}; "
       "its power is then {power}."},
      {Question::HalfWidth,
       "With {sizes} and a standard deviation of {sd}, the {confidence} confidence interval of the mean has a "
       "half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For a {confidence} confidence interval of the mean with a half-width of at most {target-half-width}, at a "
       "standard deviation of {sd}, the study needs {sizes}; the half-width is then {half-width}."},
  };

  test.examples = {
      {"mean --mean 104 --test-value 100 --sd 10 --n 40",
       "With 40 observations, the two-sided one-sample t test at a significance level of 0.05 has a power of 0.6940 to "
       "detect a mean of 104 against 100 with a standard deviation of 10."},
      {"mean --mean 104 --test-value 100 --sd 10 --power 0.8",
       "To detect a mean of 104 against 100 with a standard deviation of 10 with a power of 0.8, the two-sided "
       "one-sample t test at a significance level of 0.05 needs 52 observations; its power is then 0.8078."},
      {"mean --effect-d 0.4 --power 0.8 --one-sided",
       "To detect an effect size d of 0.4 with a power of 0.8, the one-sided one-sample t test at a significance level "
       "of 0.05 needs 41 observations; its power is then 0.8086."},
      {"mean --mean 101 --test-value 100 --sd 10 --margin -3 --non-inferiority --power 0.8 --alpha 0.025",
       "To show that the difference of the mean from the test value is above -3, given a mean of 101 against 100 "
       "with a standard deviation of 10, with a power of 0.8, the test of non-inferiority with a one-sided "
       "one-sample t test at a significance level of 0.025 needs 52 observations; its power is then 0.8078."},
      {"mean --mean 101 --test-value 100 --sd 10 --equivalence -4,4 --n 70",
       "With 70 observations, the test of equivalence with two one-sided one-sample t tests at a significance level "
       "of 0.05 has a power of 0.7934 to show that the difference of the mean from the test value is between -4 and "
       "4, given a mean of 101 against 100 with a standard deviation of 10."},
      {"mean --sd 10 --n 40 --interval",
       "With 40 observations and a standard deviation of 10, the 95% confidence interval of the mean has a half-width "
       "of 3.198."},
      {"mean --sd 10 --half-width 2.5",
       "For a 95% confidence interval of the mean with a half-width of at most 2.5, at a standard deviation of 10, the "
       "study needs 64 observations; the half-width is then 2.498."},
  };
}

}  // namespace planner
