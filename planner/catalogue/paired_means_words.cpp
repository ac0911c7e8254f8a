#include "catalogue/details.h"
#include "catalogue/margins.h"
#include "catalogue/words.h"

namespace planner {

void AddWordsOfPairedMeans(Test& test) {
  test.details = DetailsOfPairedMeans;
  test.whenNot =
      "Not for two groups of different units: see two-means; two treatments of each subject in two orders: see crossover.";
  test.phrases = {
      {"effect",
       {{"means", "means of {means} {spread}"},
        {"mean-difference", "a mean difference of {mean-difference} {spread}"},
        {"effect-d", "an effect size d of {effect-d}"}}},
      {"spread",
       {{"sds", "with standard deviations of {sds} and a correlation of {correlation}"},
        {"sd-difference", "with a standard deviation of {sd-difference} of the differences"}}},
  };
  AddPhrasesOfMargins(test, "paired-samples t test", "paired-samples t tests");
  test.sentences = {
      {Question::Power,
       "With {sizes}, the {procedure} at a significance level of {alpha} has a power of {power} to {aim}."},
      {Question::SampleSize,
       "To {aim}{comma} with a power of {target-power}, the {procedure} at a significance level of {alpha} needs {sizes}; "
       "its power is then {power}."},
      {Question::HalfWidth,
       "With {sizes} of measurements {spread}, the {confidence} confidence interval of the mean difference has a "
       "half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For a {confidence} confidence interval of the mean difference with a half-width of at most "
       "{target-half-width}, from measurements {spread}, the study needs {sizes}; the half-width is then "
       "{half-width}."},
  };

  test.examples = {
      {"paired-means --means 25,21 --sds 8,7 --correlation 0.6 --n 30",
       "With 30 pairs, the two-sided paired-samples t test at a significance level of 0.05 has a power of 0.8787 to "
       "detect means of 25 and 21 with standard deviations of 8 and 7 and a correlation of 0.6."},
      {"paired-means --means 25,21 --sds 8,7 --correlation 0.6 --power 0.9 --one-sided",
       "To detect means of 25 and 21 with standard deviations of 8 and 7 and a correlation of 0.6 with a power of 0.9, "
       "the one-sided paired-samples t test at a significance level of 0.05 needs 26 pairs; its power is then 0.9007."},
      {"paired-means --mean-difference 4 --sd-difference 8 --power 0.9",
       "To detect a mean difference of 4 with a standard deviation of 8 of the differences with a power of 0.9, the "
       "two-sided paired-samples t test at a significance level of 0.05 needs 44 pairs; its power is then 0.9000."},
      {"paired-means --mean-difference 0 --sd-difference 8 --margin 3 --non-inferiority --power 0.8",
       "To show that the mean difference is below 3, given a mean difference of 0 with a standard deviation of 8 of "
       "the differences, with a power of 0.8, the test of non-inferiority with a one-sided paired-samples t test at "
       "a significance level of 0.05 needs 46 pairs; its power is then 0.8051."},
      {"paired-means --means 25,25 --sds 8,7 --correlation 0.6 --equivalence -3,3 --n 50",
       "With 50 pairs, the test of equivalence with two one-sided paired-samples t tests at a significance level of "
       "0.05 has a power of 0.8518 to show that the mean difference is between -3 and 3, given means of 25 and 25 "
       "with standard deviations of 8 and 7 and a correlation of 0.6."},
      {"paired-means --sds 8,7 --correlation 0.6 --n 30 --interval",
       "With 30 pairs of measurements with standard deviations of 8 and 7 and a correlation of 0.6, the 95% confidence "
       "interval of the mean difference has a half-width of 2.527."},
      {"paired-means --sds 8,7 --correlation 0.6 --half-width 2",
       "For a 95% confidence interval of the mean difference with a half-width of at most 2, from measurements with "
       "standard deviations of 8 and 7 and a correlation of 0.6, the study needs 47 pairs; the half-width is then "
       "1.987."},
  };
}

}  // namespace planner
