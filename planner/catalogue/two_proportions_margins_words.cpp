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

/// The table has that for large samples among the inputs.
std::string MarginTest(const Inputs& in) {
  if (!HasMargins(in)) return "";
  return in.Flag("exact") ? "exact unconditional score test" : "{margin-method}";
}

}  // namespace

void AddMarginWordsOfTwoProportions(Test& test) {
  test.assumptions.push_back(HypothesisAssumption(Hypothesis));
  test.assumptions.push_back({.name = "margin-test", .label = "test", .needs = {"exact"}, .call = MarginTest});
  const std::string corrected = "{correction? with continuity correction:}";
  const std::string shown = "show that {hypothesis}, given {effect}";
  const std::vector<Phrase> phrases{
      {"procedure",
       {{"equivalence", "test of equivalence with two one-sided {margin-test}s" + corrected},
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
      if (isOddsRatio) return "Woolf (1955), Annals of Human Genetics 19, 251-253";
      return "Blackwelder (1982), Controlled Clinical Trials 3, 345-353";
    case MarginMethod::FarringtonManning: break;
  }
  return std::string("Farrington and Manning (1990), Statistics in Medicine 9, 1447-1454") +
         (isOddsRatio ? ", by the logarithm of the odds ratio" : "");
}

std::vector<Example> MarginExamplesOfTwoProportions() {
  return {
      {"two-proportions --proportions 0.85,0.85 --margin -0.1 --non-inferiority --power 0.8 --alpha 0.025",
       "To show that the risk difference (second minus first) is above -0.1, given proportions of 0.85 and 0.85, "
       "with a power of 0.8, the one-sided Farrington-Manning score test of non-inferiority at a significance "
       "level of 0.025 needs 207 observations in each of 2 groups (414 in total); its power is then 0.8002."},
      {"two-proportions --proportion1 0.8 --risk-ratio 1.1 --margin 0.95 --margin-scale ratio --non-inferiority --n 200",
       "With 200 observations in each of 2 groups (400 in total), the one-sided Farrington-Manning score test of "
       "non-inferiority at a significance level of 0.05 has a power of 0.9551 to show that the risk ratio (second "
       "over first) is above 0.95, given a risk ratio of 1.1 from 0.8 to 0.88."},
      {"two-proportions --proportions 0.5,0.5 --equivalence -0.1,0.1 --margin-method wald --power 0.8",
       "To show that the risk difference (second minus first) is between -0.1 and 0.1, given proportions of 0.5 "
       "and 0.5, with a power of 0.8, the test of equivalence with two one-sided Wald (unpooled) z tests at a "
       "significance level of 0.05 needs 429 observations in each of 2 groups (858 in total); its power is then "
       "0.8010."},
      {"two-proportions --proportions 0.6,0.65 --equivalence -0.2,0.2 --n 90,110 --exact",
       "With 90 and 110 observations in 2 groups (200 in total), the test of equivalence with two one-sided "
       "exact unconditional score tests at a significance level of 0.05 has a power of 0.6808 to show that "
       "the risk difference (second minus first) is between -0.2 and 0.2, given proportions of 0.6 and 0.65."},
  };
}

}  // namespace planner
