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
      {"crossover --mean-ratio 0.95 --cv 0.25 --equivalence 0.8,1.25 --power 0.8",
       "To show that the ratio of the means is between 0.8 and 1.25, given a ratio of the means of 0.95 with a "
       "coefficient of variation of 0.25 within subjects, with a power of 0.8, the test of equivalence with two "
       "one-sided t tests of the logarithms in a 2x2 crossover at a significance level of 0.05 needs 14 subjects in "
       "each of 2 groups (28 in total); its power is then 0.8074."},
      {"crossover --mean-ratio 0.95 --cv 0.25 --equivalence 0.8,1.25 --n 12",
       "With 12 subjects in each of 2 groups (24 in total), the test of equivalence with two one-sided t tests of "
       "the logarithms in a 2x2 crossover at a significance level of 0.05 has a power of 0.7391 to show that the "
       "ratio of the means is between 0.8 and 1.25, given a ratio of the means of 0.95 with a coefficient of "
       "variation of 0.25 within subjects."},
      {"crossover --mean-ratio 0.95 --cv 0.25 --margin 0.8 --non-inferiority --alpha 0.025 --n 18,17",
       "With 18 and 17 subjects in 2 groups (35 in total), the test of non-inferiority with a one-sided t test of "
       "the logarithms in a 2x2 crossover at a significance level of 0.025 has a power of 0.8086 to show that the "
       "ratio of the means is above 0.8, given a ratio of the means of 0.95 with a coefficient of variation of 0.25 "
       "within subjects."},
      {"crossover --mean-difference 3 --sd 5 --n 20",
       "With 20 subjects in each of 2 groups (40 in total), the two-sided t test in a 2x2 crossover at a "
       "significance level of 0.05 has a power of 0.7438 to detect a difference of the means of 3 with a standard "
       "deviation of 5 within subjects."},
      {"crossover --mean-ratio 1 --equivalence 0.8,1.25 --n 12 --power 0.9",
       "With 12 subjects in each of 2 groups (24 in total), the test of equivalence with two one-sided t tests of "
       "the logarithms in a 2x2 crossover at a significance level of 0.05 has a power of 0.9000 to show that the "
       "ratio of the means is between 0.8 and 1.25, given a ratio of the means of 1 with a coefficient of variation "
       "of 0.2305 within subjects."},
      {"crossover --sd 5 --n 12 --interval",
       "With 12 subjects in each of 2 groups (24 in total) in a 2x2 crossover and a standard deviation of 5 within "
       "subjects, the 95% confidence interval of the difference of the means has a half-width of 2.993."},
      {"crossover --sd 5 --half-width 2",
       "For a 95% confidence interval of the difference of the means with a half-width of at most 2, at a standard "
       "deviation of 5 within subjects, a 2x2 crossover needs 26 subjects in each of 2 groups (52 in total); the "
       "half-width is then 1.97."},
  };
}

}  // namespace planner
