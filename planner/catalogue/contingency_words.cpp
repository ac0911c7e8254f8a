#include "catalogue/details.h"
#include "catalogue/words.h"

namespace planner {

void AddWordsOfContingency(Test& test) {
  test.details = DetailsOfContingency;
  test.whenNot =
      "Not for two groups of few observations: see two-proportions with its exact tests; pairs: see paired-proportions; "
      "one variable against fixed proportions: see goodness-of-fit.";
  test.phrases = {
      {"effect",
       {{"table", "joint proportions of {table}"},
        {"profiles", "proportions of {profiles} within the rows"},
        {"cramers-v", "a Cramer's V of {cramers-v}"},
        {"effect-w", "an effect size w of {effect-w}"}}},
      {"where",
       {{"columns", " in a {rows} x {columns} table"},
        {"rows", " in a table of {rows} rows"},
        {"df", " with {df} degrees of freedom"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the {likelihood-ratio?likelihood-ratio:Pearson} chi-square test of independence{where} at a "
       "significance level of {alpha} has a power of {power} to detect {effect}."},
      {Question::SampleSize,
       "To detect {effect} with a power of {target-power}, the {likelihood-ratio?likelihood-ratio:Pearson} chi-square "
       "test of independence{where} at a significance level of {alpha} needs {sizes}; its power is then {power}."},
  };
  test.examples = {
      {"contingency --effect-w 0.3 --rows 3 --columns 4 --power 0.8", ""},
      {"contingency --cramers-v 0.2 --rows 3 --columns 4 --n 150", ""},
      {"contingency --table 0.05,0.35,0.1,0.075,0.25,0.175 --rows 2 --n 230", ""},
      {"contingency --profiles 0.3,0.5,0.2,0.4,0.4,0.2,0.5,0.3,0.2 --rows 3 --ratios 1,1,2 --power 0.8", ""},
      {"contingency --effect-w 0.3 --df 5 --power 0.95", ""},
  };
}

}  // namespace planner
