#include <utility>

#include "catalogue/details.h"
#include "catalogue/proportion_margins.h"
#include "catalogue/words.h"

namespace planner {

void AddWordsOfProportion(Test& test) {
  test.details = DetailsOfProportion;
  test.whenNot =
      "Not for two groups: see two-proportions; two measurements on the same subjects: see paired-proportions.";
  test.phrases = PhrasesOfProportion();
  test.sentences = {
      {Question::Power,
       "With {sizes}, the {procedure} at a significance level of {alpha} has a power of {power} to {aim}."},
      {Question::SampleSize,
       "To {aim}{comma} with a power of {target-power}, the {procedure} at a significance level of {alpha} needs "
       "{sizes}; its power is then {power}."},
      {Question::HalfWidth,
       "With {sizes}, the {confidence} {interval-method} confidence interval of a proportion of {proportion} has a "
       "half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For a {confidence} {interval-method} confidence interval of a proportion of {proportion} with a half-width of "
       "at most {target-half-width}, the study needs {sizes}; the half-width is then {half-width}."},
  };

  test.examples = {
      {"proportion --null 0.5 --n 60 --power 0.8 --below",
       "With 60 observations, the two-sided normal approximation to the test of a proportion of 0.5 at a significance "
       "level of 0.05 has a power of 0.8000 to detect a proportion of 0.3227."},
      {"proportion --proportion 0.65 --null 0.5 --n 60",
       "With 60 observations, the two-sided normal approximation to the test of a proportion of 0.5 at a significance "
       "level of 0.05 has a power of 0.6485 to detect a proportion of 0.65."},
      {"proportion --proportion 0.8 --null 0.65 --n 20 --exact --one-sided",
       "With 20 observations, the one-sided exact test of a proportion of 0.65 at a significance level of 0.05 has a "
       "power of 0.4114 to detect a proportion of 0.8."},
      {"proportion --proportion 0.65 --null 0.8 --power 0.8 --exact",
       "To detect a proportion of 0.65 with a power of 0.8, the two-sided exact test of a proportion of 0.8, with at "
       "most half of the level in each tail, at a significance level of 0.05 needs 72 observations; its power is then "
       "0.8191. Some larger sample sizes do not reach it; all do from 78 observations on."},
      {"proportion --proportion 0.2 --n 40 --interval --interval-method clopper-pearson",
       "With 40 observations, the 95% Clopper-Pearson confidence interval of a proportion of 0.2 has a half-width of "
       "0.133."},
      {"proportion --proportion 0.4 --half-width 0.07 --interval-method wald",
       "For a 95% Wald confidence interval of a proportion of 0.4 with a half-width of at most 0.07, the study needs "
       "189 observations; the half-width is then 0.06984."},
  };
  for (Example& example : MarginExamplesOfProportion()) test.examples.push_back(std::move(example));
}

}  // namespace planner
