#include "catalogue/core.h"
#include "catalogue/margins.h"
#include "catalogue/proportion_margins.h"

namespace planner {
namespace {

std::string Hypothesis(const Inputs& in) {
  using kelpower::proportions::Contrast;
  switch (MarginContrast(in)) {
    case Contrast::RiskRatio: return HypothesisOfMargins(in, "ratio of the proportion to {null}", noRatio);
    case Contrast::OddsRatio: return HypothesisOfMargins(in, "odds ratio of the proportion to {null}", noRatio);
    case Contrast::Difference: break;
  }
  return HypothesisOfMargins(in, "difference of the proportion from {null}", noDifference);
}

/// For the sentence alone: the table has it among the inputs.
std::string StandardError(const Inputs& in) {
  if (!HasMargins(in) || in.Flag("exact")) return "";
  return "the standard error {standard-error}{correction? and a continuity correction:}";
}

}  // namespace

std::vector<Assumption> MarginAssumptionsOfProportion() {
  return {HypothesisAssumption(Hypothesis),
          {.name = "margin-error",
           .label = "standard error of the z test",
           .needs = {"exact"},
           .call = StandardError,
           .wording = ", with <0>,"}};
}

std::vector<Phrase> PhrasesOfProportion() {
  return {
      {"procedure",
       {{"equivalence", "test of equivalence with two one-sided {exact?exact binomial tests:z tests}{margin-error}"},
        {"margin",
         "one-sided {exact?exact binomial test:z test} of {non-inferiority?non-inferiority:superiority by a "
         "margin}{margin-error}"},
        {"alpha",
         "{one-sided?one-sided:two-sided} {exact?exact test:normal approximation to the test} of a proportion of "
         "{null}{tails}"}}},
      {"aim",
       {{"equivalence", "show that {hypothesis}, given a proportion of {proportion}"},
        {"margin", "show that {hypothesis}, given a proportion of {proportion}"},
        {"alpha", "detect a proportion of {proportion}"}}},
      {"comma", {{"equivalence", ","}, {"margin", ","}, {"alpha", ""}}},
  };
}

std::vector<Example> MarginExamplesOfProportion() {
  return {
      {"proportion --proportion 0.9 --null 0.85 --margin -0.1 --non-inferiority --alpha 0.025 --power 0.8",
       "To show that the difference of the proportion from 0.85 is above -0.1, given a proportion of 0.9, with a "
       "power of 0.8, the one-sided z test of non-inferiority, with the standard error at the limit, at a "
       "significance level of 0.025 needs 54 observations; its power is then 0.8010."},
      {"proportion --proportion 0.6 --null 0.6 --equivalence -0.1,0.1 --n 500 --exact",
       "With 500 observations, the test of equivalence with two one-sided exact binomial tests at a significance "
       "level of 0.05 has a power of 0.9965 to show that the difference of the proportion from 0.6 is between "
       "-0.1 and 0.1, given a proportion of 0.6."},
      {"proportion --proportion 0.25 --null 0.1 --margin 1.5 --margin-scale ratio --superiority --power 0.8 --exact",
       "To show that the ratio of the proportion to 0.1 is above 1.5, given a proportion of 0.25, with a power of "
       "0.8, the one-sided exact binomial test of superiority by a margin at a significance level of 0.05 needs "
       "101 observations; its power is then 0.8042. Some larger sample sizes do not reach it; all do from 110 "
       "observations on."},
  };
}

}  // namespace planner
