#include "catalogue/details.h"
#include "catalogue/words.h"

namespace planner {

void AddWordsOfMannWhitney(Test& test) {
  test.details = DetailsOfMannWhitney;
  test.whenNot =
      "Not for ordered categories or many ties: see ordinal; pairs or one sample: see signed-rank; a difference of "
      "means: see two-means.";
  test.phrases = {
      {"effect",
       {{"effect-d", "a shift of {effect-d} standard deviations of {parent} values"},
        {"superiority", "a probability of superiority of {superiority}"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the {one-sided?one-sided:two-sided} Wilcoxon-Mann-Whitney test at a significance level of "
       "{alpha} has a power of {power}{approximation} to detect {effect}."},
      {Question::SampleSize,
       "To detect {effect} with a power of {target-power}{approximation}, the {one-sided?one-sided:two-sided} "
       "Wilcoxon-Mann-Whitney test at a significance level of {alpha} needs {sizes}; its power is then {power}."},
  };

  test.examples = {
      {"mann-whitney --effect-d 0.5 --n 50",
       "With 50 observations in each of 2 groups (100 in total), the two-sided Wilcoxon-Mann-Whitney test at a "
       "significance level of 0.05 has a power of 0.6765 (by asymptotic relative efficiency) to detect a shift of 0.5 "
       "standard deviations of normal values."},
      {"mann-whitney --effect-d 0.5 --power 0.8",
       "To detect a shift of 0.5 standard deviations of normal values with a power of 0.8 (by asymptotic relative "
       "efficiency), the two-sided Wilcoxon-Mann-Whitney test at a significance level of 0.05 needs 67 observations in "
       "each of 2 groups (134 in total); its power is then 0.8013."},
      {"mann-whitney --effect-d 0.375 --n 134,67 --parent laplace --method lehmann",
       "With 134 and 67 observations in 2 groups (201 in total), the two-sided Wilcoxon-Mann-Whitney test at a "
       "significance level of 0.05 has a power of 0.8472 (by Lehmann's formula) to detect a shift of 0.375 standard "
       "deviations of Laplace values."},
      {"mann-whitney --superiority 0.65 --power 0.9 --ratio 2 --one-sided",
       "To detect a probability of superiority of 0.65 with a power of 0.9 (by Noether's formula), the one-sided "
       "Wilcoxon-Mann-Whitney test at a significance level of 0.05 needs 48 and 96 observations in 2 groups (144 in "
       "total); its power is then 0.9023."},
      {"mann-whitney --effect-d 0.5 --power 0.8 --parent logistic --method noether",
       "To detect a shift of 0.5 standard deviations of logistic values with a power of 0.8 (by Noether's formula), "
       "the two-sided Wilcoxon-Mann-Whitney test at a significance level of 0.05 needs 61 observations in each of 2 "
       "groups (122 in total); its power is then 0.8036."},
      {"mann-whitney --n 30,40 --power 0.8",
       "With 30 and 40 observations in 2 groups (70 in total), the two-sided Wilcoxon-Mann-Whitney test at a "
       "significance level of 0.05 has a power of 0.8000 (by asymptotic relative efficiency) to detect a shift of "
       "0.7029 standard deviations of normal values."},
  };
}

}  // namespace planner
