#include "catalogue/details.h"
#include "catalogue/margins.h"
#include "catalogue/words.h"

namespace planner {

void AddWordsOfCrossover(Test& test) {
  test.details = DetailsOfCrossover;
  test.whenNot =
      "Not for two groups that receive one treatment each: see two-means; two measurements without periods: see "
      "paired-means.";
  test.phrases = {
      {"effect",
       {{"mean-difference", "a difference of the means of {mean-difference} with {spread}"},
        {"mean-ratio", "a ratio of the means of {mean-ratio} with {spread}"}}},
      {"spread",
       {{"sd", "a standard deviation of {sd} within subjects"},
        {"cv", "a coefficient of variation of {cv} within subjects"}}},
      {"of-logs", {{"cv", " of the logarithms"}, {"alpha", ""}}},
  };
  AddPhrasesOfMargins(test, "t test{of-logs}", "t tests{of-logs}");
  test.sentences = {
      {Question::Power,
       "With {sizes}, the {procedure} in a 2x2 crossover at a significance level of {alpha} has a power of {power} to "
       "{aim}."},
      {Question::SampleSize,
       "To {aim}{comma} with a power of {target-power}, the {procedure} in a 2x2 crossover at a significance level of "
       "{alpha} needs {sizes}; its power is then {power}."},
      {Question::HalfWidth,
       "With {sizes} in a 2x2 crossover and {spread}, the {confidence} confidence interval of the difference of the "
       "means has a half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For a {confidence} confidence interval of the difference of the means with a half-width of at most "
       "{target-half-width}, at {spread}, a 2x2 crossover needs {sizes}; the half-width is then {half-width}."},
  };

  test.examples = {
      {"crossover --mean-ratio 0.95 --cv 0.25 --equivalence 0.8,1.25 --power 0.8", "?"},
      {"crossover --mean-ratio 0.95 --cv 0.25 --equivalence 0.8,1.25 --n 12", "?"},
      {"crossover --mean-ratio 0.95 --cv 0.25 --margin 0.8 --non-inferiority --alpha 0.025 --n 18,17", "?"},
      {"crossover --mean-difference 3 --sd 5 --n 20", "?"},
      {"crossover --mean-ratio 1 --equivalence 0.8,1.25 --n 12 --power 0.9", "?"},
      {"crossover --sd 5 --n 12 --interval", "?"},
      {"crossover --sd 5 --half-width 2", "?"},
  };
}

}  // namespace planner
