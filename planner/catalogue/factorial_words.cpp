#include "catalogue/details.h"
#include "catalogue/words.h"

namespace planner {

void AddWordsOfFactorial(Test& test) {
  test.details = DetailsOfFactorial;
  test.whenNot =
      "Not for factors that the same subjects go through, see repeated-measures; nor for a single comparison of cells, "
      "see contrast with the cells as groups.";
  test.phrases = {
      {"effect",
       {{"means", "cell means of {means} with a standard deviation of {sd} within the cells"},
        {"effect-f", "an effect size f of {effect-f}"},
        {"eta-squared", "a partial eta squared of {eta-squared}"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the F test (type III) of the {tested-effect} in a {layout} factorial analysis of "
       "variance at a significance level of {alpha} has a power of {power} to detect {effect}."},
      {Question::SampleSize,
       "To detect {effect} with a power of {target-power}, the F test (type III) of the {tested-effect} in a {layout} "
       "factorial analysis of variance at a significance level of {alpha} needs {sizes}; its power is then "
       "{power}."},
  };
  test.examples = {
      {"factorial --levels 2,3 --term 1,2 --effect-f 0.25 --power 0.8",
       "To detect an effect size f of 0.25 with a power of 0.8, the F test (type III) of the interaction of "
       "factors 1 and 2 in a 2 x 3 factorial analysis of variance at a significance level of 0.05 needs 27 "
       "observations in each of 6 groups (162 in total); its power is then 0.8126."},
      {"factorial --levels 2,3 --term 1,2 --means 10,12,15,10,11,12 --sd 4 --n 25",
       "With 25 observations in each of 6 groups (150 in total), the F test (type III) of the interaction of "
       "factors 1 and 2 in a 2 x 3 factorial analysis of variance at a significance level of 0.05 has a power of "
       "0.3756 to detect cell means of 10, 12, 15, 10, 11 and 12 with a standard deviation of 4 within the cells."},
      {"factorial --levels 2,3 --term 1 --means 10,12,15,10,11,12 --sd 4 --n 20,20,20,30,30,30",
       "With 20, 20, 20, 30, 30 and 30 observations in 6 groups (150 in total), the F test (type III) of the main"
       " effect of factor 1 in a 2 x 3 factorial analysis of variance at a significance level of 0.05 has a power"
       " of 0.5107 to detect cell means of 10, 12, 15, 10, 11 and 12 with a standard deviation of 4 within the "
       "cells."},
      {"factorial --levels 2,2,2 --term 1,2,3 --eta-squared 0.06 --power 0.9",
       "To detect a partial eta squared of 0.06 with a power of 0.9, the F test (type III) of the interaction of "
       "factors 1, 2 and 3 in a 2 x 2 x 2 factorial analysis of variance at a significance level of 0.05 needs 21"
       " observations in each of 8 groups (168 in total); its power is then 0.9023."},
  };
}

}  // namespace planner
