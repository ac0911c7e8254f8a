#include "catalogue/details.h"
#include "catalogue/words.h"

namespace planner {

void AddWordsOfContrast(Test& test) {
  test.details = DetailsOfContrast;
  test.whenNot = "Not for the question whether any means differ at all: see anova; all pairs of groups: see pairwise.";
  test.phrases = {
      {"effect",
       {{"means", "group means of {means} with a standard deviation of {sd} within the groups"},
        {"effect-d", "a standardized contrast of {effect-d}"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the {one-sided?one-sided:two-sided} test of the contrast with coefficients {coefficients} at a "
       "significance level of {alpha} has a power of {power} to detect {effect}."},
      {Question::SampleSize,
       "To detect {effect} with a power of {target-power}, the {one-sided?one-sided:two-sided} test of the contrast "
       "with coefficients {coefficients} at a significance level of {alpha} needs {sizes}; its power is then {power}."},
      {Question::HalfWidth,
       "With {sizes} and a standard deviation of {sd} within the groups, the {confidence} confidence interval of the "
       "contrast with coefficients {coefficients} has a half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For a {confidence} confidence interval of the contrast with coefficients {coefficients} with a half-width of "
       "at most {target-half-width}, at a standard deviation of {sd} within the groups, the study needs {sizes}; the "
       "half-width is then {half-width}."},
  };

  test.examples = {
      {"contrast --coefficients -0.5,-0.5,1 --means 10,12,15 --sd 6 --n 20",
       "With 20 observations in each of 3 groups (60 in total), the two-sided test of the contrast with coefficients "
       "-0.5, -0.5 and 1 at a significance level of 0.05 has a power of 0.6676 to detect group means of 10, 12 and 15 "
       "with a standard deviation of 6 within the groups."},
      {"contrast --coefficients -0.5,-0.5,1 --means 10,12,15 --sd 6 --power 0.9 --one-sided",
       "To detect group means of 10, 12 and 15 with a standard deviation of 6 within the groups with a power of 0.9, "
       "the one-sided test of the contrast with coefficients -0.5, -0.5 and 1 at a significance level of 0.05 needs 30 "
       "observations in each of 3 groups (90 in total); its power is then 0.9055."},
      {"contrast --coefficients 1,-1,0 --effect-d 0.5 --power 0.8 --ratios 1,1,2",
       "To detect a standardized contrast of 0.5 with a power of 0.8, the two-sided test of the contrast with "
       "coefficients 1, -1 and 0 at a significance level of 0.05 needs 64, 64 and 127 observations in 3 groups (255 in "
       "total); its power is then 0.8045."},
      {"contrast --coefficients -0.5,-0.5,1 --sd 6 --n 20,20,30 --interval",
       "With 20, 20 and 30 observations in 3 groups (70 in total) and a standard deviation of 6 within the groups, the "
       "95% confidence interval of the contrast with coefficients -0.5, -0.5 and 1 has a half-width of 2.892."},
      {"contrast --coefficients -0.5,-0.5,1 --sd 6 --half-width 2",
       "For a 95% confidence interval of the contrast with coefficients -0.5, -0.5 and 1 with a half-width of at most "
       "2, at a standard deviation of 6 within the groups, the study needs 53 observations in each of 3 groups (159 in "
       "total); the half-width is then 1.994."},
  };
}

}  // namespace planner
