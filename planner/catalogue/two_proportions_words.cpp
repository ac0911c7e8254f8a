#include "catalogue/words.h"

namespace planner {

void AddWordsOfTwoProportions(Test& test) {
  test.phrases = {
      {"effect",
       {{"proportions", "proportions of {proportions}"},
        {"risk-difference", "a risk difference of {risk-difference} from a first proportion of {proportion1}"},
        {"risk-ratio", "a risk ratio of {risk-ratio} at a first proportion of {proportion1}"},
        {"odds-ratio", "an odds ratio of {odds-ratio} at a first proportion of {proportion1}"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the {one-sided?one-sided:two-sided} {exact?exact :}{pooled?pooled :}{test} of two independent "
       "proportions{continuity-correction? with continuity correction:} at a significance level of {alpha} has a "
       "power of {power} to detect {effect}."},
      {Question::SampleSize,
       "To detect {effect} with a power of {target-power}, the {one-sided?one-sided:two-sided} {exact?exact "
       ":}{pooled?pooled :}{test} of two independent proportions{continuity-correction? with continuity correction:} "
       "at a significance level of {alpha} needs {sizes}; its power is then {power}."},
      {Question::HalfWidth,
       "With {sizes} and {effect}, the {confidence} {interval-method} confidence interval of the difference of "
       "proportions has a half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For a {confidence} {interval-method} confidence interval of the difference of proportions with a half-width "
       "of at most {target-half-width}, at {effect}, the study needs {sizes}; the half-width is then {half-width}."},
  };

  test.examples = {
      {"two-proportions --proportions 0.5,0.75 --n 50 --pooled",
       "With 50 observations in each of 2 groups (100 in total), the two-sided pooled z test of two independent "
       "proportions at a significance level of 0.05 has a power of 0.7402 to detect proportions of 0.5 and 0.75."},
      {"two-proportions --proportions 0.8,0.6 --n 40,60 --test likelihood-ratio --exact",
       "With 40 and 60 observations in 2 groups (100 in total), the two-sided exact likelihood-ratio test of two "
       "independent proportions at a significance level of 0.05 has a power of 0.5828 to detect proportions of 0.8 "
       "and 0.6."},
      {"two-proportions --proportions 0.022,0.001 --power 0.8 --pooled --one-sided",
       "To detect proportions of 0.022 and 0.001 with a power of 0.8, the one-sided pooled z test of two independent "
       "proportions at a significance level of 0.05 needs 318 observations in each of 2 groups (636 in total); its "
       "power is then 0.8003."},
      {"two-proportions --proportions 0.5,0.75 --power 0.8 --test conditional",
       "To detect proportions of 0.5 and 0.75 with a power of 0.8, the two-sided conditional (Fisher) test of two "
       "independent proportions at a significance level of 0.05 needs 64 observations in each of 2 groups (128 in "
       "total); its power is then 0.8017."},
      {"two-proportions --proportion1 0.3 --risk-ratio 1.5 --power 0.9 --ratio 2 --test arcsine",
       "To detect a risk ratio of 1.5 at a first proportion of 0.3 with a power of 0.9, the two-sided arcsine test "
       "of two independent proportions at a significance level of 0.05 needs 308 and 615 observations in 2 groups "
       "(923 in total); its power is then 0.9003."},
      {"two-proportions --proportion1 0.5 --odds-ratio 0.5 --power 0.8 --continuity-correction",
       "To detect an odds ratio of 0.5 at a first proportion of 0.5 with a power of 0.8, the two-sided z test of two "
       "independent proportions with continuity correction at a significance level of 0.05 needs 146 observations in "
       "each of 2 groups (292 in total); its power is then 0.8024."},
      {"two-proportions --proportion1 0.5 --risk-difference -0.25 --n 50,100 --test t --pooled",
       "With 50 and 100 observations in 2 groups (150 in total), the two-sided pooled t test of two independent "
       "proportions at a significance level of 0.05 has a power of 0.8813 to detect a risk difference of -0.25 from "
       "a first proportion of 0.5."},
      {"two-proportions --proportions 0.8,0.6 --n 70,80 --interval",
       "With 70 and 80 observations in 2 groups (150 in total) and proportions of 0.8 and 0.6, the 95% Newcombe "
       "confidence interval of the difference of proportions has a half-width of 0.1407."},
      {"two-proportions --proportions 0.8,0.6 --half-width 0.1 --interval-method wald",
       "For a 95% Wald confidence interval of the difference of proportions with a half-width of at most 0.1, at "
       "proportions of 0.8 and 0.6, the study needs 154 observations in each of 2 groups (308 in total); the "
       "half-width is then 0.09989."},
  };
}

}  // namespace planner
