#include "catalogue/details.h"
#include "catalogue/words.h"

namespace planner {

void AddWordsOfRepeatedMeasures(Test& test) {
  test.details = DetailsOfRepeatedMeasures;
  test.whenNot =
      "Not for two measurements of one group, see paired-means; nor for groups alone, see anova; nor for subjects who "
      "miss measurements.";
  test.phrases = {
      {"of-contrast", {{"coefficients", " (contrast of the measurements with coefficients {coefficients})"}}},
      {"correlated", {{"correlation", " and a correlation of {correlation} between measurements"}}},
      {"expected",
       {{"means", "means of {means} with a standard deviation of {sd}{correlated}"},
        {"effect-f", "an effect size f of {effect-f} ({meaning-of-f}){correlated}"},
        {"eta-squared", "a partial eta squared of {eta-squared} ({meaning-of-f}){correlated}"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, measured {measurements} times, the F test of the {effect}{of-contrast} in a repeated-measures analysis of "
       "variance at a significance level of {alpha} has a power of {power}{method} to detect {expected}."},
      {Question::SampleSize,
       "To detect {expected} with a power of {target-power}, the F test of the {effect}{of-contrast} in a repeated-measures analysis "
       "of variance at a significance level of {alpha} needs {sizes}, measured {measurements} times; its power is then "
       "{power}{method}."},
  };
  test.examples = {
      {"repeated-measures --effect interaction --groups 2 --measurements 4 --correlation 0.5 --effect-f 0.25 --power 0.8",
       ""},
      {"repeated-measures --effect within --measurements 4 --means 1.5,2.5,2,0 --sd 5 --correlation 0.2 --n 83", ""},
      {"repeated-measures --effect interaction --measurements 3 --means 10,10,10,10,11,13 --sd 4 --correlation 0.6 "
       "--epsilon 0.8 --n 30,20",
       ""},
      {"repeated-measures --effect within --measurements 4 --coefficients 1,1,1,-3 --means 1.5,2.5,2,0 --sd 5 "
       "--correlation 0.2 --power 0.9",
       ""},
      {"repeated-measures --effect within --groups 2 --measurements 3 --eta-squared 0.06 --f-of sample --power 0.9",
       ""},
  };
}

}  // namespace planner
