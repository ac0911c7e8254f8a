#include "catalogue/details.h"
#include "catalogue/words.h"

namespace planner {

void AddWordsOfGoodnessOfFit(Test& test) {
  test.details = DetailsOfGoodnessOfFit;
  test.whenNot =
      "Not for two variables or groups: see contingency; two categories and few observations: see proportion with its "
      "exact test.";
  test.phrases = {
      {"null",
       {{"null-proportions", " against {null-proportions}"}, {"proportions", " against equal ones"}, {"effect-w", ""}}},
      {"effect", {{"proportions", "proportions of {proportions}"}, {"effect-w", "an effect size w of {effect-w}"}}},
      {"degrees", {{"df", " with {df} degrees of freedom"}, {"proportions", ""}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the {likelihood-ratio?likelihood-ratio:Pearson} chi-square test of goodness of fit{degrees} at a "
       "significance level of {alpha} has a power of {power} to detect {effect}{null}."},
      {Question::SampleSize,
       "To detect {effect}{null} with a power of {target-power}, the {likelihood-ratio?likelihood-ratio:Pearson} "
       "chi-square test of goodness of fit{degrees} at a significance level of {alpha} needs {sizes}; its power is then "
       "{power}."},
  };
  test.examples = {
      {"goodness-of-fit --proportions 0.28,0.72 --n 41",
       "With 41 observations, the Pearson chi-square test of goodness of fit at a significance level of 0.05 has a "
       "power of 0.8044 to detect proportions of 0.28 and 0.72 against equal ones."},
      {"goodness-of-fit --proportions 0.5,0.25,0.15,0.1 --null-proportions 9,3,3,1 --power 0.9",
       "To detect proportions of 0.5, 0.25, 0.15 and 0.1 against 9, 3, 3 and 1 with a power of 0.9, the Pearson "
       "chi-square test of goodness of fit at a significance level of 0.05 needs 246 observations; its power is "
       "then 0.9009."},
      {"goodness-of-fit --effect-w 0.1 --df 20 --power 0.8",
       "To detect an effect size w of 0.1 with a power of 0.8, the Pearson chi-square test of goodness of fit with "
       "20 degrees of freedom at a significance level of 0.05 needs 2097 observations; its power is then 0.8002."},
      {"goodness-of-fit --proportions 0.5,0.3,0.2 --power 0.8 --likelihood-ratio",
       "To detect proportions of 0.5, 0.3 and 0.2 against equal ones with a power of 0.8, the likelihood-ratio "
       "chi-square test of goodness of fit at a significance level of 0.05 needs 70 observations; its power is then "
       "0.8009."},
  };
}

}  // namespace planner
