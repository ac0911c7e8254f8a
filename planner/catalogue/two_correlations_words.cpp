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
      {"two-correlations --correlations 0.75,0.88 --n 51,260",
       "With 51 and 260 cases in 2 groups (311 in total), the two-sided test that two independent correlations are "
       "equal, by Fisher's z, at a significance level of 0.05 has a power of 0.7264 to detect correlations of 0.75 "
       "and 0.88."},
      {"two-correlations --correlations 0.5,0.3 --power 0.8",
       "To detect correlations of 0.5 and 0.3 with a power of 0.8, the two-sided test that two independent "
       "correlations are equal, by Fisher's z, at a significance level of 0.05 needs 277 cases in each of 2 groups "
       "(554 in total); its power is then 0.8014."},
      {"two-correlations --correlations 0.5,0.3 --power 0.9 --one-sided --ratio 2",
       "To detect correlations of 0.5 and 0.3 with a power of 0.9, the one-sided test that two independent "
       "correlations are equal, by Fisher's z, at a significance level of 0.05 needs 226 and 452 cases in 2 groups "
       "(678 in total); its power is then 0.9001."},
      {"two-correlations --effect-q 0.3 --power 0.8",
       "To detect an effect size q of 0.3 with a power of 0.8, the two-sided test that two independent correlations "
       "are equal, by Fisher's z, at a significance level of 0.05 needs 178 cases in each of 2 groups (356 in "
       "total); its power is then 0.8013."},
  };
}

}  // namespace planner
