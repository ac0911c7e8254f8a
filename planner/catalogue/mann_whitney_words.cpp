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
      {"mann-whitney --effect-d 0.5 --n 50", ""},
      {"mann-whitney --effect-d 0.5 --power 0.8", ""},
      {"mann-whitney --effect-d 0.375 --n 134,67 --parent laplace --method lehmann", ""},
      {"mann-whitney --superiority 0.65 --power 0.9 --ratio 2 --one-sided", ""},
      {"mann-whitney --effect-d 0.5 --power 0.8 --parent logistic --method noether", ""},
      {"mann-whitney --n 30,40 --power 0.8", ""},
  };
}

}  // namespace planner
