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
      {"signed-rank --effect-d 0.5 --n 35", ""},
      {"signed-rank --effect-d 0.5 --power 0.8", ""},
      {"signed-rank --effect-d 0.4 --n 40 --parent laplace --method lehmann --one-sided", ""},
      {"signed-rank --positive-average 0.87 --n 20", ""},
      {"signed-rank --positive-average 0.7 --power 0.9", ""},
      {"signed-rank --n 30 --power 0.8", ""},
  };
}

}  // namespace planner
