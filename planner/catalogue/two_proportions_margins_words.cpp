#include "catalogue/margins.h"
#include "catalogue/proportion_margins.h"
#include "catalogue/two_proportions_margins.h"

namespace planner {
namespace {

std::string Hypothesis(const Inputs& in) {
  using kelpower::proportions::Contrast;
  switch (MarginContrast(in)) {
    case Contrast::RiskRatio: return HypothesisOfMargins(in, "risk ratio (second over first)", noRatio);
    case Contrast::OddsRatio: return HypothesisOfMargins(in, "odds ratio (second over first)", noRatio);
    case Contrast::Difference: break;
  }
  return HypothesisOfMargins(in, "risk difference (second minus first)", noDifference);
}

}  // namespace

void AddMarginWordsOfTwoProportions(Test& test) {
  test.assumptions.push_back(HypothesisAssumption(Hypothesis));
  const std::string corrected = "{correction? with continuity correction:}";
  const std::string shown = "show that {hypothesis}, given {effect}";
  const std::vector<Phrase> phrases{
      {"margin-test", {{"margin-method", "{margin-method}"}, {"exact", "exact unconditional score test"}}},
      {"procedure",
       {{"equivalence", "test of equivalence by two one-sided {margin-test}s" + corrected},
        {"margin", "one-sided {margin-test} of {non-inferiority?non-inferiority:superiority by a margin}" + corrected},
        {"alpha",
         "{one-sided?one-sided:two-sided} {exact?exact :}{standard-error}{method} of two independent proportions" +
             corrected + "{corrected}{tails}"}}},
      {"aim", {{"equivalence", shown}, {"margin", shown}, {"alpha", "detect {effect}"}}},
      {"comma", {{"equivalence", ","}, {"margin", ","}, {"alpha", ""}}}};
  test.phrases.insert(test.phrases.end(), phrases.begin(), phrases.end());
}

std::string SourceOfMargins(const kelpower::proportions::IndependentMarginDesign& design) {
  using kelpower::proportions::Contrast;
  using kelpower::proportions::MarginMethod;
  const bool isRatio = design.limits.contrast == Contrast::RiskRatio;
  const bool isOddsRatio = design.limits.contrast == Contrast::OddsRatio;
  switch (design.method) {
    case MarginMethod::MiettinenNurminen: return "Miettinen and Nurminen (1985), Statistics in Medicine 4, 213-226";
    case MarginMethod::Pooled:
      return "Blackwelder (1982), Controlled Clinical Trials 3, 345-353, with the variance pooled as if there were no "
             "margin";
    case MarginMethod::Wald:
      if (isRatio) return "Katz, Baptista, Azen and Pike (1978), Biometrics 34, 469-474, by the logarithm of the ratio";
      if (isOddsRatio) return "Wang, Chow and Li (2002), Journal of Biopharmaceutical Statistics 12, 97-108";
      return "Blackwelder (1982), Controlled Clinical Trials 3, 345-353";
    case MarginMethod::FarringtonManning: break;
  }
  return std::string("Farrington and Manning (1990), Statistics in Medicine 9, 1447-1454") +
         (isOddsRatio ? ", by the logarithm of the odds ratio" : "");
}

std::vector<Example> MarginExamplesOfTwoProportions() {
  return {
      {"two-proportions --proportions 0.85,0.85 --margin -0.1 --non-inferiority --power 0.8 --alpha 0.025", ""},
      {"two-proportions --proportion1 0.8 --risk-ratio 1.1 --margin 0.95 --margin-scale ratio --superiority --n 200",
       ""},
      {"two-proportions --proportions 0.5,0.5 --equivalence -0.1,0.1 --margin-method wald --power 0.8", ""},
      {"two-proportions --proportions 0.6,0.7 --margin -0.1 --non-inferiority --n 60,80 --exact", ""},
  };
}

}  // namespace planner
