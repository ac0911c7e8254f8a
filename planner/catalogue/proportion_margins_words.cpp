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

}  // namespace

std::vector<Assumption> MarginAssumptionsOfProportion() { return {HypothesisAssumption(Hypothesis)}; }

std::vector<Phrase> PhrasesOfProportion() {
  return {
      {"procedure",
       {{"equivalence", "test of equivalence by two one-sided {exact?exact binomial tests:z tests}{margin-error}"},
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
      {"margin-error",
       {{"standard-error", ", with the standard error {standard-error}{correction? and a continuity correction:},"}}},
      {"comma", {{"equivalence", ","}, {"margin", ","}, {"alpha", ""}}},
  };
}

std::vector<Example> MarginExamplesOfProportion() {
  return {
      {"proportion --proportion 0.9 --null 0.85 --margin -0.1 --non-inferiority --alpha 0.025 --power 0.8", ""},
      {"proportion --proportion 0.6 --null 0.6 --equivalence -0.1,0.1 --n 500 --exact", ""},
      {"proportion --proportion 0.25 --null 0.1 --margin 1.5 --margin-scale ratio --superiority --power 0.8 --exact",
       ""},
  };
}

}  // namespace planner
