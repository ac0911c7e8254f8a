#include "catalogue/signed_rank.h"

namespace planner {

void AddWordsOfSignedRank(Test& test) {
  test.details = DetailsOfSignedRank;
  test.whenNot =
      "Not for two independent groups: see mann-whitney; differences that are not symmetric, of which a sign test of "
      "their directions is left: see proportion --null 0.5 --exact; a mean: see mean or paired-means.";
  test.phrases = {
      {"effect",
       {{"effect-d", "a shift of {effect-d} standard deviations of {parent} differences"},
        {"positive-average", "a probability of {positive-average} that the average of two differences is above 0"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the {one-sided?one-sided:two-sided} Wilcoxon signed-rank test at a significance level of {alpha} "
       "has a power of {power}{approximation} to detect {effect}."},
      {Question::SampleSize,
       "To detect {effect} with a power of {target-power}{approximation}, the {one-sided?one-sided:two-sided} Wilcoxon "
       "signed-rank test at a significance level of {alpha} needs {sizes}; its power is then {power}."},
  };

  test.examples = {
      {"signed-rank --effect-d 0.5 --n 35",
       "With 35 observations, the two-sided Wilcoxon signed-rank test at a significance level of 0.05 has a power of "
       "0.8007 (by asymptotic relative efficiency) to detect a shift of 0.5 standard deviations of normal "
       "differences."},
      {"signed-rank --effect-d 0.5 --power 0.8",
       "To detect a shift of 0.5 standard deviations of normal differences with a power of 0.8 (by asymptotic relative "
       "efficiency), the two-sided Wilcoxon signed-rank test at a significance level of 0.05 needs 35 observations; "
       "its power is then 0.8007."},
      {"signed-rank --effect-d 0.4 --n 40 --parent laplace --method lehmann --one-sided",
       "With 40 observations, the one-sided Wilcoxon signed-rank test at a significance level of 0.05 has a power of "
       "0.8915 (by Lehmann's formula) to detect a shift of 0.4 standard deviations of Laplace differences."},
      {"signed-rank --positive-average 0.87 --n 20",
       "With 20 observations, the two-sided Wilcoxon signed-rank test at a significance level of 0.05 has a power of "
       "0.8175 (by Noether's formula) to detect a probability of 0.87 that the average of two differences is above 0."},
      {"signed-rank --positive-average 0.7 --power 0.9",
       "To detect a probability of 0.7 that the average of two differences is above 0 with a power of 0.9 (by "
       "Noether's formula), the two-sided Wilcoxon signed-rank test at a significance level of 0.05 needs 88 "
       "observations; its power is then 0.9014."},
      {"signed-rank --n 30 --power 0.8",
       "With 30 observations, the two-sided Wilcoxon signed-rank test at a significance level of 0.05 has a power of "
       "0.8000 (by asymptotic relative efficiency) to detect a shift of 0.5425 standard deviations of normal "
       "differences."},
  };
}

}  // namespace planner
