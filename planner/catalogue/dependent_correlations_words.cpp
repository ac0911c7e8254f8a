#include "catalogue/details.h"
#include "catalogue/words.h"

namespace planner {

void AddWordsOfDependentCorrelations(Test& test) {
  test.details = DetailsOfDependentCorrelations;
  test.whenNot =
      "Not for correlations in two independent groups: see two-correlations; one correlation against a given "
      "value: see "
      "pearson.";
  test.phrases = {
      {"compared",
       {{"r34", "correlations of {r12} of variables 1 and 2 and of {r34} of variables 3 and 4"},
        {"r13", "correlations of {r12} of variables 1 and 2 and of {r13} of variables 1 and 3"}}},
      {"others",
       {{"r34",
         "where those of the other pairs are {r13} (1 and 3), {r14} (1 and 4), {r23} (2 and 3) and {r24} (2 and 4)"},
        {"r13", "where that of variables 2 and 3 is {r23}"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the {one-sided?one-sided:two-sided} test that two dependent correlations are equal, by "
       "Fisher's z, its standard error under the null hypothesis taken {null-correlations}, at a significance "
       "level "
       "of {alpha} has a power of {power} to detect {compared}, {others}."},
      {Question::SampleSize,
       "To detect {compared}, {others}, with a power of {target-power}, the {one-sided?one-sided:two-sided} test "
       "that two "
       "dependent correlations are equal, by Fisher's z, its standard error under the null hypothesis taken "
       "{null-correlations}, at a significance level of {alpha} needs {sizes}; its power is then {power}."},
  };
  test.examples = {
      {"dependent-correlations --r12 0.4 --r13 0.2 --r23 0.5 --n 144 --one-sided",
       "With 144 cases, the one-sided test that two dependent correlations are equal, by Fisher's z, its standard "
       "error under the null hypothesis taken with both correlations as the first, at a significance level of 0.05 "
       "has a power of 0.8012 to detect correlations of 0.4 of variables 1 and 2 and of 0.2 of variables 1 and 3, "
       "where that of variables 2 and 3 is 0.5."},
      {"dependent-correlations --r12 0.4 --r13 0.2 --r23 0.5 --power 0.8 --null-correlations average",
       "To detect correlations of 0.4 of variables 1 and 2 and of 0.2 of variables 1 and 3, where that of variables "
       "2 and 3 is 0.5, with a power of 0.8, the two-sided test that two dependent correlations are equal, by "
       "Fisher's z, its standard error under the null hypothesis taken with both correlations as their average, at a "
       "significance level of 0.05 needs 175 cases; its power is then 0.8002."},
      {"dependent-correlations --r12 0.1 --r34 0.2 --r13 0.5 --r14 0.4 --r23 -0.4 --r24 0.8 --power 0.8 --one-sided",
       "To detect correlations of 0.1 of variables 1 and 2 and of 0.2 of variables 3 and 4, where those of the other "
       "pairs are 0.5 (1 and 3), 0.4 (1 and 4), -0.4 (2 and 3) and 0.8 (2 and 4), with a power of 0.8, the one-sided "
       "test that two dependent correlations are equal, by Fisher's z, its standard error under the null hypothesis "
       "taken with both correlations as the first, at a significance level of 0.05 needs 886 cases; its power is "
       "then 0.8002."},
      {"dependent-correlations --r12 0.4 --r23 0.5 --n 144 --power 0.8 --below",
       "With 144 cases, the two-sided test that two dependent correlations are equal, by Fisher's z, its standard "
       "error under the null hypothesis taken with both correlations as the first, at a significance level of 0.05 "
       "has a power of 0.8000 to detect correlations of 0.4 of variables 1 and 2 and of 0.1734 of variables 1 and 3, "
       "where that of variables 2 and 3 is 0.5."},
  };
}

}  // namespace planner
