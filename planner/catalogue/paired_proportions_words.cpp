#include "catalogue/details.h"
#include "catalogue/words.h"

namespace planner {

void AddWordsOfPairedProportions(Test& test) {
  test.details = DetailsOfPairedProportions;
  test.whenNot = "Not for two groups of different subjects: see two-proportions.";
  test.phrases = {
      {"effect",
       {{"p12", "discordant pairs with proportions of {p12} and {p21}"},
        {"proportion1", "proportions of {proportion1} and {proportion2} with a correlation of {correlation}"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the {one-sided?one-sided:two-sided} {exact?exact:large-sample} McNemar test{tails} at a "
       "significance level of {alpha} has a power of {power} to detect {effect}."},
      {Question::SampleSize,
       "To detect {effect} with a power of {target-power}, the {one-sided?one-sided:two-sided} "
       "{exact?exact:large-sample} McNemar test{tails} at a significance level of {alpha} needs {sizes}; its power is "
       "then {power}."},
      {Question::HalfWidth,
       "With {sizes} and discordant pairs with proportions of {p12} and {p21}, the {confidence} {interval-method} "
       "confidence interval of the difference has a half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For a {confidence} {interval-method} confidence interval of the difference with a half-width of at most "
       "{target-half-width}, at discordant pairs with proportions of {p12} and {p21}, the study needs {sizes}; the "
       "half-width is then {half-width}."},
  };

  test.examples = {
      {"paired-proportions --p12 0.08 --p21 0.32 --n 50 --exact --one-sided",
       "With 50 pairs, the one-sided exact McNemar test at a significance level of 0.05 has a power of 0.8394 to "
       "detect discordant pairs with proportions of 0.08 and 0.32."},
      {"paired-proportions --proportion1 0.6 --proportion2 0.4 --correlation 0.3 --n 60 --exact",
       "With 60 pairs, the two-sided exact McNemar test, with at most half of the level in each tail, at a "
       "significance level of 0.05 has a power of 0.6692 to detect proportions of 0.6 and 0.4 with a correlation of "
       "0.3."},
      {"paired-proportions --p12 0.08 --p21 0.32 --power 0.8 --one-sided",
       "To detect discordant pairs with proportions of 0.08 and 0.32 with a power of 0.8, the one-sided large-sample "
       "McNemar test at a significance level of 0.05 needs 41 pairs; its power is then 0.8019."},
      {"paired-proportions --p12 0.3 --p21 0.1 --n 100 --interval",
       "With 100 pairs and discordant pairs with proportions of 0.3 and 0.1, the 95% Wald confidence interval of the "
       "difference has a half-width of 0.1176."},
      {"paired-proportions --p12 0.3 --p21 0.1 --half-width 0.1 --interval-method bonett-price",
       "For a 95% Bonett-Price confidence interval of the difference with a half-width of at most 0.1, at discordant "
       "pairs with proportions of 0.3 and 0.1, the study needs 140 pairs; the half-width is then 0.09999."},
  };
}

}  // namespace planner
