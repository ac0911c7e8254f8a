#include "catalogue/details.h"
#include "catalogue/words.h"

namespace planner {

void AddWordsOfPearson(Test& test) {
  test.details = DetailsOfPearson;
  test.whenNot =
      "Not for ranks: see spearman; with other variables held fixed: see partial; two correlations: see two-correlations "
      "and dependent-correlations.";
  test.examples = {
      {"pearson --r 0.3 --n 84",
       "With 84 cases, the two-sided test of a Pearson correlation of 0 by Fisher's z at a significance level of 0.05 "
       "has a power of 0.7955 to detect a correlation of 0.3."},
      {"pearson --r 0.5 --null 0.2 --n 84 --one-sided --adjust-bias",
       "With 84 cases, the one-sided test of a Pearson correlation of 0.2 by Fisher's z, corrected for bias, at a "
       "significance level of 0.05 has a power of 0.9322 to detect a correlation of 0.5."},
      {"pearson --r 0.3 --null 0.6 --n 30 --exact",
       "With 30 cases, the two-sided test of a Pearson correlation of 0.6 by the exact distribution of r at a significance "
       "level of 0.05 has a power of 0.5259 to detect a correlation of 0.3."},
      {"pearson --r 0.2 --power 0.8 --exact",
       "To detect a correlation of 0.2 with a power of 0.8, the two-sided test of a Pearson correlation of 0 by the exact "
       "distribution of r at a significance level of 0.05 needs 193 cases; its power is then 0.8001."},
      {"pearson --r 0.3 --power 0.9",
       "To detect a correlation of 0.3 with a power of 0.9, the two-sided test of a Pearson correlation of 0 by "
       "Fisher's z at a significance level of 0.05 needs 113 cases; its power is then 0.9008."},
      {"pearson --r 0.3 --n 84 --interval",
       "With 84 cases, the 95% confidence interval of a Pearson correlation of 0.3 by Fisher's z has a half-width of "
       "0.1959."},
      {"pearson --r 0.7 --half-width 0.05",
       "For a 95% confidence interval of a Pearson correlation of 0.7 by Fisher's z with a half-width of at most 0.05, "
       "the study needs 404 cases; the half-width is then 0.04999."},
  };
}

}  // namespace planner
