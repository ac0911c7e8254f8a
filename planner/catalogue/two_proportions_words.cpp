#include <utility>

#include "catalogue/details.h"
#include "catalogue/two_proportions_margins.h"
#include "catalogue/words.h"

namespace planner {

void AddWordsOfTwoProportions(Test& test) {
  test.details = DetailsOfTwoProportions;
  test.whenNot =
      "Not for two measurements on the same subjects: see paired-proportions; more than two groups: see contingency.";
  test.phrases = {
      {"effect",
       {{"proportions", "proportions of {proportions}"},
        {"risk-difference", "a risk difference of {risk-difference} from {proportion1} to {proportion2}"},
        {"risk-ratio", "a risk ratio of {risk-ratio} from {proportion1} to {proportion2}"},
        {"odds-ratio", "an odds ratio of {odds-ratio} from {proportion1} to {proportion2}"},
        {"proportion1", "proportions of {proportion1} and {proportion2}"}}},
  };
  AddMarginWordsOfTwoProportions(test);
  test.sentences = {
      {Question::Power,
       "With {sizes}, the {procedure} at a significance level of {alpha} has a power of {power} to {aim}."},
      {Question::SampleSize,
       "To {aim}{comma} with a power of {target-power}, the {procedure} at a significance level of {alpha} needs "
       "{sizes}; its power is then {power}."},
      {Question::HalfWidth,
       "With {sizes} and {effect}, the {confidence} {interval-method} confidence interval of the difference of "
       "proportions has a half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For a {confidence} {interval-method} confidence interval of the difference of proportions with a half-width of "
       "at most {target-half-width}, at {effect}, the study needs {sizes}; the half-width is then {half-width}."},
  };

  test.examples = {
      {"two-proportions --proportions 0.5,0.75 --n 50",
       "With 50 observations in each of 2 groups (100 in total), the two-sided pooled z test of two independent "
       "proportions at a significance level of 0.05 has a power of 0.7402 to detect proportions of 0.5 and 0.75."},
      {"two-proportions --proportions 0.8,0.6 --n 40,60 --method likelihood-ratio --exact",
       "With 40 and 60 observations in 2 groups (100 in total), the two-sided exact likelihood-ratio test of two "
       "independent proportions at a significance level of 0.05 has a power of 0.5828 to detect proportions of 0.8 and "
       "0.6."},
      {"two-proportions --proportions 0.022,0.001 --power 0.8 --one-sided",
       "To detect proportions of 0.022 and 0.001 with a power of 0.8, the one-sided pooled z test of two independent "
       "proportions at a significance level of 0.05 needs 318 observations in each of 2 groups (636 in total); its "
       "power is then 0.8003."},
      {"two-proportions --proportions 0.5,0.75 --power 0.8 --method conditional",
       "To detect proportions of 0.5 and 0.75 with a power of 0.8, the two-sided conditional (Fisher) test of two "
       "independent proportions, with at most half of the level in each tail, at a significance level of 0.05 needs 64 "
       "observations in each of 2 groups (128 in total); its power is then 0.8017. All larger sample sizes reach it too."},
      {"two-proportions --proportion1 0.3 --risk-ratio 1.5 --power 0.9 --ratio 2 --method arcsine",
       "To detect a risk ratio of 1.5 from 0.3 to 0.45 with a power of 0.9, the two-sided arcsine test of two "
       "independent proportions, corrected by half an observation in each group, at a significance level of 0.05 needs "
       "173 and 346 observations in 2 groups (519 in total); its power is then 0.9006."},
      {"two-proportions --proportion1 0.5 --odds-ratio 0.5 --power 0.8 --correction --unpooled",
       "To detect an odds ratio of 0.5 from 0.5 to 0.3333 with a power of 0.8, the two-sided unpooled z test of two "
       "independent proportions with continuity correction at a significance level of 0.05 needs 146 observations in "
       "each of 2 groups (292 in total); its power is then 0.8024."},
      {"two-proportions --proportion1 0.5 --risk-difference -0.25 --n 50,100 --method t",
       "With 50 and 100 observations in 2 groups (150 in total), the two-sided pooled t test of two independent "
       "proportions at a significance level of 0.05 has a power of 0.8813 to detect a risk difference of -0.25 from "
       "0.5 to 0.25."},
      {"two-proportions --proportions 0.8,0.6 --n 70,80 --interval",
       "With 70 and 80 observations in 2 groups (150 in total) and proportions of 0.8 and 0.6, the 95% Newcombe "
       "confidence interval of the difference of proportions has a half-width of 0.1407."},
      {"two-proportions --proportions 0.8,0.6 --half-width 0.1 --interval-method wald",
       "For a 95% Wald confidence interval of the difference of proportions with a half-width of at most 0.1, at "
       "proportions of 0.8 and 0.6, the study needs 154 observations in each of 2 groups (308 in total); the "
       "half-width is then 0.09989."},
  };
  for (Example& example : MarginExamplesOfTwoProportions()) test.examples.push_back(std::move(example));
}

}  // namespace planner
