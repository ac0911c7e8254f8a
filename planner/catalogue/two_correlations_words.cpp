#include "catalogue/details.h"
#include "catalogue/words.h"

namespace planner {

void AddWordsOfTwoCorrelations(Test& test) {
  test.details = DetailsOfTwoCorrelations;
  test.whenNot =
      "Not for two correlations in one sample: see dependent-correlations; one correlation against a given value: see "
      "pearson.";
  test.phrases = {
      {"effect", {{"correlations", "correlations of {correlations}"}, {"effect-q", "an effect size q of {effect-q}"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the {one-sided?one-sided:two-sided} test that two independent correlations are equal, by Fisher's "
       "z, at a significance level of {alpha} has a power of {power} to detect {effect}."},
      {Question::SampleSize,
       "To detect {effect} with a power of {target-power}, the {one-sided?one-sided:two-sided} test that two independent "
       "correlations are equal, by Fisher's z, at a significance level of {alpha} needs {sizes}; its power is then "
       "{power}."},
  };
  test.examples = {
      {"two-correlations --correlations 0.75,0.88 --n 51,260", ""},
      {"two-correlations --correlations 0.5,0.3 --power 0.8", ""},
      {"two-correlations --correlations 0.5,0.3 --power 0.9 --one-sided --ratio 2", ""},
      {"two-correlations --effect-q 0.3 --power 0.8", ""},
  };
}

}  // namespace planner
