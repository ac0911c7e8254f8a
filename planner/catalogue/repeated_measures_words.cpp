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
       "With {sizes}, measured {measurements} times, the F test of the {effect}{of-contrast} in a "
       "repeated-measures analysis of "
       "variance at a significance level of {alpha} has a power of {power}{method} to detect {expected}."},
      {Question::SampleSize,
       "To detect {expected} with a power of {target-power}, the F test of the {effect}{of-contrast} in a "
       "repeated-measures analysis "
       "of variance at a significance level of {alpha} needs {sizes}, measured {measurements} times; its power is then "
       "{power}{method}."},
  };
  test.examples = {
      {"repeated-measures --effect interaction --groups 2 --measurements 4 --correlation 0.5 --effect-f 0.25 "
       "--power 0.8",
       "To detect an effect size f of 0.25 (standard deviation of the means over that of one measurement) and a "
       "correlation of 0.5 between measurements with a power of 0.8, the F test of the interaction of groups and "
       "measurements in a repeated-measures analysis of variance at a significance level of 0.05 needs 12 "
       "subjects in each of 2 groups (24 in total), measured 4 times; its power is then 0.8157 (exact for equal "
       "correlations)."},
      {"repeated-measures --effect within --measurements 4 --means 1.5,2.5,2,0 --sd 5 --correlation 0.2 --n 83",
       "With 83 subjects, measured 4 times, the F test of the effect within subjects in a repeated-measures "
       "analysis of variance at a significance level of 0.05 has a power of 0.9027 (exact for equal correlations)"
       " to detect means of 1.5, 2.5, 2 and 0 with a standard deviation of 5 and a correlation of 0.2 between "
       "measurements."},
      {"repeated-measures --effect interaction --measurements 3 --means 10,10,10,10,11,13 --sd 4 --correlation "
       "0.6 --epsilon 0.8 --n 30,20",
       "With 30 and 20 subjects in 2 groups (50 in total), measured 3 times, the F test of the interaction of "
       "groups and measurements in a repeated-measures analysis of variance at a significance level of 0.05 has a"
       " power of 0.6736 (approximate, degrees of freedom and noncentrality times epsilon) to detect means of 10,"
       " 10, 10, 10, 11 and 13 with a standard deviation of 4 and a correlation of 0.6 between measurements."},
      {"repeated-measures --effect within --measurements 4 --coefficients 1,1,1,-3 --means 1.5,2.5,2,0 --sd 5 "
       "--correlation 0.2 --power 0.9",
       "To detect means of 1.5, 2.5, 2 and 0 with a standard deviation of 5 and a correlation of 0.2 between "
       "measurements with a power of 0.9, the F test of the effect within subjects (contrast of the measurements "
       "with coefficients 1, 1, 1 and -3) in a repeated-measures analysis of variance at a significance level of "
       "0.05 needs 71 subjects, measured 4 times; its power is then 0.9012 (exact for equal correlations)."},
      {"repeated-measures --effect within --groups 2 --measurements 3 --eta-squared 0.06 --f-of sample --power "
       "0.9",
       "To detect a partial eta squared of 0.06 (partial eta squared as the analysis of a sample gives it) with a"
       " power of 0.9, the F test of the effect within subjects in a repeated-measures analysis of variance at a "
       "significance level of 0.05 needs 52 subjects in each of 2 groups (104 in total), measured 3 times; its "
       "power is then 0.9042 (exact for equal correlations)."},
  };
}

}  // namespace planner
