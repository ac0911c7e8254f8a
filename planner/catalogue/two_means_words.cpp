#include "catalogue/details.h"
#include "catalogue/margins.h"
#include "catalogue/words.h"

namespace planner {

void AddWordsOfTwoMeans(Test& test) {
  test.details = DetailsOfTwoMeans;
  test.whenNot =
      "Not for two measurements on the same units: see paired-means; two treatments of each subject in turn: see "
      "crossover; more than two groups: see anova.";
  test.phrases = {
      {"effect",
       {{"means", "means of {means} with standard deviations of {sd}"},
        {"mean-difference", "a difference of the means of {mean-difference} with standard deviations of {sd}"},
        {"mean-ratio", "a ratio of the means of {mean-ratio} with a coefficient of variation of {cv}"},
        {"effect-d", "an effect size d of {effect-d}"}}},
      {"t-test", {{"cv", "independent-samples t test of the logarithms"}, {"alpha", "independent-samples t test"}}},
      {"t-tests", {{"cv", "independent-samples t tests of the logarithms"}, {"alpha", "independent-samples t tests"}}},
  };
  AddPhrasesOfMargins(test, "{t-test}", "{t-tests}");
  test.sentences = {
      {Question::Power,
       "With {sizes}, the {procedure}{variances} at a significance level of {alpha} has a power of {power} to {aim}."},
      {Question::SampleSize,
       "To {aim}{comma} with a power of {target-power}, the {procedure}{variances} at a significance level of {alpha} "
       "needs {sizes}; its power is then {power}."},
      {Question::HalfWidth,
       "With {sizes} and standard deviations of {sd}, the {confidence} confidence interval of the difference of means "
       "has a half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For a {confidence} confidence interval of the difference of means with a half-width of at most "
       "{target-half-width}, at standard deviations of {sd}, the study needs {sizes}; the half-width is then "
       "{half-width}."},
  };

  test.examples = {
      {"two-means --means 52,47 --sd 10,14 --n 40",
       "With 40 observations in each of 2 groups (80 in total), the two-sided independent-samples t test (variances "
       "unequal, Welch's test) at a significance level of 0.05 has a power of 0.4417 to detect means of 52 and 47 with "
       "standard deviations of 10 and 14."},
      {"two-means --effect-d 0.6 --n 90,60 --one-sided",
       "With 90 and 60 observations in 2 groups (150 in total), the one-sided independent-samples t test at a "
       "significance level of 0.05 has a power of 0.9737 to detect an effect size d of 0.6."},
      {"two-means --means 52,47 --sd 10,14 --power 0.8 --ratio 2",
       "To detect means of 52 and 47 with standard deviations of 10 and 14 with a power of 0.8, the two-sided "
       "independent-samples t test (variances unequal, Welch's test) at a significance level of 0.05 needs 63 and 126 "
       "observations in 2 groups (189 in total); its power is then 0.8006."},
      {"two-means --effect-d 0.5 --power 0.8",
       "To detect an effect size d of 0.5 with a power of 0.8, the two-sided independent-samples t test at a "
       "significance level of 0.05 needs 64 observations in each of 2 groups (128 in total); its power is then "
       "0.8015."},
      {"two-means --effect-d 0.5 --power 0.8 --cluster-size 20 --icc 0.05 --dropout 0.15",
       "To detect an effect size d of 0.5 with a power of 0.8, the two-sided independent-samples t test at a "
       "significance level of 0.05 needs 125 observations in each of 2 groups (250 in total); its power is then "
       "0.8021. "
       "These are members of clusters of 20 with an intracluster correlation of 0.05: the design effect is 1.95. Enrol "
       "160 in each group (320 in total), 8 clusters in each group (16 in total), of whom 15% may drop out."},
      {"two-means --sd 10 --n 35,50 --power 0.8",
       "With 35 and 50 observations in 2 groups (85 in total), the two-sided independent-samples t test (variances "
       "pooled) at a significance level of 0.05 has a power of 0.8000 to detect a difference of the means of 6.247 "
       "with standard deviations of 10 and 10."},
      {"two-means --mean-difference 0 --sd 6 --margin -2 --non-inferiority --power 0.9 --alpha 0.025",
       "To show that the difference of the means is above -2, given a difference of the means of 0 with standard "
       "deviations of 6 and 6, with a power of 0.9, the test of non-inferiority with a one-sided "
       "independent-samples t test (variances pooled) at a significance level of 0.025 needs 191 observations in "
       "each of 2 groups (382 in total); its power is then 0.9013."},
      {"two-means --means 52,47 --sd 10,14 --n 90 --margin 2 --superiority",
       "With 90 observations in each of 2 groups (180 in total), the test of superiority by a margin with a "
       "one-sided independent-samples t test (variances unequal, Welch's test) at a significance level of 0.05 has "
       "a power of 0.5010 to show that the difference of the means is above 2, given means of 52 and 47 with "
       "standard deviations of 10 and 14."},
      {"two-means --mean-difference 0.5 --sd 4 --equivalence -2,2 --power 0.8",
       "To show that the difference of the means is between -2 and 2, given a difference of the means of 0.5 with "
       "standard deviations of 4 and 4, with a power of 0.8, the test of equivalence with two one-sided "
       "independent-samples t tests (variances pooled) at a significance level of 0.05 needs 91 observations in "
       "each of 2 groups (182 in total); its power is then 0.8039."},
      {"two-means --mean-ratio 0.95 --cv 0.4 --equivalence 0.8,1.25 --n 80",
       "With 80 observations in each of 2 groups (160 in total), the test of equivalence with two one-sided "
       "independent-samples t tests of the logarithms at a significance level of 0.05 has a power of 0.8756 to show "
       "that the ratio of the means is between 0.8 and 1.25, given a ratio of the means of 0.95 with a coefficient "
       "of variation of 0.4."},
      {"two-means --sd 10,14 --n 40 --interval",
       "With 40 observations in each of 2 groups (80 in total) and standard deviations of 10 and 14, the 95% "
       "confidence interval of the difference of means has a half-width of 5.425."},
      {"two-means --sd 10,14 --half-width 4",
       "For a 95% confidence interval of the difference of means with a half-width of at most 4, at standard "
       "deviations of 10 and 14, the study needs 73 observations in each of 2 groups (146 in total); the half-width is "
       "then 3.984."},
  };
}

}  // namespace planner
