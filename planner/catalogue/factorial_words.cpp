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
      {"factorial --levels 2,3 --term 1,2 --effect-f 0.25 --power 0.8", ""},
      {"factorial --levels 2,3 --term 1,2 --means 10,12,15,10,11,12 --sd 4 --n 25", ""},
      {"factorial --levels 2,3 --term 1 --means 10,12,15,10,11,12 --sd 4 --n 20,20,20,30,30,30", ""},
      {"factorial --levels 2,2,2 --term 1,2,3 --eta-squared 0.06 --power 0.9", ""},
  };
}

}  // namespace planner
