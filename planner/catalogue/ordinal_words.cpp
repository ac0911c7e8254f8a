#include "catalogue/ordinal.h"

namespace planner {

void AddWordsOfOrdinal(Test& test) {
  test.details = DetailsOfOrdinal;
  test.whenNot =
      "Not for categories without an order; values without ties: see mann-whitney; two categories: see "
      "two-proportions.";
  test.phrases = {
      {"effect",
       {{"odds-ratio", "an odds ratio of {odds-ratio} for higher categories, from probabilities of {probabilities1}"},
        {"probabilities2", "probabilities of {probabilities1} against {probabilities2}"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the {one-sided?one-sided:two-sided} Wilcoxon-Mann-Whitney test of ordered categories at a "
       "significance level of {alpha} has a power of {power} (by {method}) to detect {effect}."},
      {Question::SampleSize,
       "To detect {effect} with a power of {target-power} (by {method}), the {one-sided?one-sided:two-sided} "
       "Wilcoxon-Mann-Whitney test of ordered categories at a significance level of {alpha} needs {sizes}; its power "
       "is "
       "then {power}."},
  };

  test.examples = {
      {"ordinal --probabilities1 0.1,0.2,0.4,0.2,0.1 --probabilities2 0.05,0.1,0.35,0.3,0.2 --power 0.8",
       "To detect probabilities of 0.1, 0.2, 0.4, 0.2 and 0.1 against 0.05, 0.1, 0.35, 0.3 and 0.2 with a power of 0.8 "
       "(by O'Brien and Castelloe's formula), the two-sided Wilcoxon-Mann-Whitney test of ordered categories at a "
       "significance level of 0.05 needs 73 observations in each of 2 groups (146 in total); its power is then "
       "0.8042."},
      {"ordinal --probabilities1 0.1,0.2,0.4,0.2,0.1 --odds-ratio 2 --power 0.9 --method whitehead",
       "To detect an odds ratio of 2 for higher categories, from probabilities of 0.1, 0.2, 0.4, 0.2 and 0.1 with a "
       "power of 0.9 (by Whitehead's formula), the two-sided Wilcoxon-Mann-Whitney test of ordered categories at a "
       "significance level of 0.05 needs 143 observations in each of 2 groups (286 in total); its power is then "
       "0.9018."},
      {"ordinal --probabilities1 0.01,0.04,0.2,0.5,0.2,0.04,0.01 --probabilities2 0.01,0.03,0.15,0.35,0.3,0.1,0.06 --n "
       "50 --one-sided",
       "With 50 observations in each of 2 groups (100 in total), the one-sided Wilcoxon-Mann-Whitney test of ordered "
       "categories at a significance level of 0.05 has a power of 0.6512 (by O'Brien and Castelloe's formula) to "
       "detect probabilities of 0.01, 0.04, 0.2, 0.5, 0.2, 0.04 and 0.01 against 0.01, 0.03, 0.15, 0.35, 0.3, 0.1 and "
       "0.06."},
      {"ordinal --probabilities1 0.3,0.4,0.2,0.1 --probabilities2 0.2,0.3,0.3,0.2 --n 120,60 --method "
       "happ-bathke-brunner",
       "With 120 and 60 observations in 2 groups (180 in total), the two-sided Wilcoxon-Mann-Whitney test of ordered "
       "categories at a significance level of 0.05 has a power of 0.7130 (by Happ, Bathke and Brunner's formula) to "
       "detect probabilities of 0.3, 0.4, 0.2 and 0.1 against 0.2, 0.3, 0.3 and 0.2."},
      {"ordinal --probabilities1 0.1,0.2,0.4,0.2,0.1 --n 60 --power 0.8",
       "With 60 observations in each of 2 groups (120 in total), the two-sided Wilcoxon-Mann-Whitney test of ordered "
       "categories at a significance level of 0.05 has a power of 0.8000 (by O'Brien and Castelloe's formula) to "
       "detect an odds ratio of 2.537 for higher categories, from probabilities of 0.1, 0.2, 0.4, 0.2 and 0.1."},
  };
}

}  // namespace planner
