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
      {"contingency --effect-w 0.3 --rows 3 --columns 4 --power 0.8",
       "To detect an effect size w of 0.3 with a power of 0.8, the Pearson chi-square test of independence in a 3 x "
       "4 table at a significance level of 0.05 needs 152 observations; its power is then 0.8019."},
      {"contingency --cramers-v 0.2 --rows 3 --columns 4 --n 150",
       "With 150 observations, the Pearson chi-square test of independence in a 3 x 4 table at a significance level "
       "of 0.05 has a power of 0.7380 to detect a Cramer's V of 0.2."},
      {"contingency --table 0.05,0.35,0.1,0.075,0.25,0.175 --rows 2 --n 230",
       "With 230 observations, the Pearson chi-square test of independence in a table of 2 rows at a significance "
       "level of 0.05 has a power of 0.8023 to detect joint proportions of 0.05, 0.35, 0.1, 0.075, 0.25 and 0.175."},
      {"contingency --profiles 0.3,0.5,0.2,0.4,0.4,0.2,0.5,0.3,0.2 --rows 3 --ratios 1,1,2 --power 0.8",
       "To detect proportions of 0.3, 0.5, 0.2, 0.4, 0.4, 0.2, 0.5, 0.3 and 0.2 within the rows with a power of "
       "0.8, the Pearson chi-square test of independence in a table of 3 rows at a significance level of 0.05 needs "
       "346 observations; its power is then 0.8002."},
      {"contingency --effect-w 0.3 --df 5 --power 0.95",
       "To detect an effect size w of 0.3 with a power of 0.95, the Pearson chi-square test of independence with 5 "
       "degrees of freedom at a significance level of 0.05 needs 220 observations; its power is then 0.9502."},
  };
}

}  // namespace planner
