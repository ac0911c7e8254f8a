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
       "Wilcoxon-Mann-Whitney test of ordered categories at a significance level of {alpha} needs {sizes}; its power is "
       "then {power}."},
  };

  test.examples = {
      {"ordinal --probabilities1 0.1,0.2,0.4,0.2,0.1 --probabilities2 0.05,0.1,0.35,0.3,0.2 --power 0.8", ""},
      {"ordinal --probabilities1 0.1,0.2,0.4,0.2,0.1 --odds-ratio 2 --power 0.9 --method whitehead", ""},
      {"ordinal --probabilities1 0.01,0.04,0.2,0.5,0.2,0.04,0.01 --probabilities2 0.01,0.03,0.15,0.35,0.3,0.1,0.06 --n "
       "50 --one-sided",
       ""},
      {"ordinal --probabilities1 0.3,0.4,0.2,0.1 --probabilities2 0.2,0.3,0.3,0.2 --n 120,60 --method "
       "happ-bathke-brunner",
       ""},
      {"ordinal --probabilities1 0.1,0.2,0.4,0.2,0.1 --n 60 --power 0.8", ""},
  };
}

}  // namespace planner
