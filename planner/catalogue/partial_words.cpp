#include "catalogue/details.h"
#include "catalogue/words.h"

namespace planner {

void AddWordsOfPartial(Test& test) {
  test.details = DetailsOfPartial;
  test.whenNot = "Not for several predictors at once: see regression; without other variables: see pearson.";
  test.examples = {
      {"partial --r 0.3 --partialled-out 3 --n 84",
       "With 84 cases, the two-sided test of a partial correlation of 0 by Fisher's z at a significance level of 0.05 "
       "has a power of 0.7854 to detect a correlation of 0.3 given 3 variables."},
      {"partial --r 0.5 --partialled-out 3 --null 0.2 --n 84 --one-sided",
       "With 84 cases, the one-sided test of a partial correlation of 0.2 by Fisher's z at a significance level of "
       "0.05 has a power of 0.9242 to detect a correlation of 0.5 given 3 variables."},
      {"partial --r 0.3 --partialled-out 3 --power 0.9",
       "To detect a correlation of 0.3 given 3 variables with a power of 0.9, the two-sided test of a partial "
       "correlation of 0 by Fisher's z at a significance level of 0.05 needs 115 cases; its power is then 0.9008."},
      {"partial --r 0.3 --partialled-out 3 --n 84 --interval",
       "With 84 cases, the 95% confidence interval of a partial correlation of 0.3 given 3 variables by Fisher's z has "
       "a half-width of 0.1996."},
      {"partial --r 0.7 --partialled-out 3 --half-width 0.05",
       "For a 95% confidence interval of a partial correlation of 0.7 given 3 variables by Fisher's z with a "
       "half-width of at most 0.05, the study needs 407 cases; the half-width is then 0.04999."},
  };
}

}  // namespace planner
