#include "catalogue/details.h"
#include "catalogue/words.h"

namespace planner {

void AddWordsOfSpearman(Test& test) {
  test.details = DetailsOfSpearman;
  test.whenNot = "Not for linear relations of normal variables: see pearson, which needs fewer cases.";
  test.examples = {
      {"spearman --r 0.3 --n 84",
       "With 84 cases, the two-sided test of a Spearman correlation of 0 by Fisher's z with the variance of Bonett and "
       "Wright at a significance level of 0.05 has a power of 0.7779 to detect a correlation of 0.3."},
      {"spearman --r 0.5 --null 0.2 --n 84 --one-sided --variance fieller",
       "With 84 cases, the one-sided test of a Spearman correlation of 0.2 by Fisher's z with the variance of Fieller, "
       "Hartley and Pearson at a significance level of 0.05 has a power of 0.9169 to detect a correlation of 0.5."},
      {"spearman --r 0.3 --power 0.9",
       "To detect a correlation of 0.3 with a power of 0.9, the two-sided test of a Spearman correlation of 0 by "
       "Fisher's z with the variance of Bonett and Wright at a significance level of 0.05 needs 118 cases; its power "
       "is then 0.9010."},
      {"spearman --r 0.3 --n 84 --interval",
       "With 84 cases, the 95% confidence interval of a Spearman correlation of 0.3 by Fisher's z with the variance of "
       "Bonett and Wright has a half-width of 0.2002."},
      {"spearman --r 0.7 --half-width 0.05",
       "For a 95% confidence interval of a Spearman correlation of 0.7 by Fisher's z with the variance of Bonett and "
       "Wright with a half-width of at most 0.05, the study needs 503 cases; the half-width is then 0.04995."},
  };
}

}  // namespace planner
