#include <cmath>

#include "catalogue/effects_inputs.h"
#include "catalogue/effects_parts.h"
#include "effects/correlation.h"
#include "effects/mean_difference.h"

namespace planner {
namespace {

namespace core = kelpower::effects;

/// An effect size of two groups, of the first in this order over the second.
using OfCounts = std::optional<core::Estimate> (*)(const core::EventCount&, const core::EventCount&, double alpha);

/// The first group is the one of reference, as in the tests of two proportions.
EffectValue WithInterval(OfCounts estimated, double value, const Inputs& in) {
  const std::optional<TwoEventCounts> counts = EventCountsOf(in);
  if (!counts) return {value};
  return ValueOr(estimated(counts->second, counts->first, in.Alpha()), value);
}

double GivenOr(Name name, double computed, const Inputs& in) { return in.Has(name) ? in.Number(name) : computed; }

std::optional<EffectValue> FirstProportion(const Inputs& in) {
  const std::optional<TwoEventCounts> counts = EventCountsOf(in);
  return ValueOr(counts ? core::Proportion(counts->first, in.Alpha()) : std::nullopt, ProportionsOf(in).first);
}

std::optional<EffectValue> SecondProportion(const Inputs& in) {
  const std::optional<TwoEventCounts> counts = EventCountsOf(in);
  return ValueOr(counts ? core::Proportion(counts->second, in.Alpha()) : std::nullopt, ProportionsOf(in).second);
}

std::optional<EffectValue> RiskDifference(const Inputs& in) {
  const auto [first, second] = ProportionsOf(in);
  return WithInterval(core::RiskDifference, GivenOr("risk-difference", second - first, in), in);
}

std::optional<EffectValue> RiskRatio(const Inputs& in) {
  const auto [first, second] = ProportionsOf(in);
  return WithInterval(core::RiskRatio, GivenOr("risk-ratio", second / first, in), in);
}

std::optional<EffectValue> OddsRatio(const Inputs& in) {
  const auto [first, second] = ProportionsOf(in);
  return WithInterval(core::OddsRatio, GivenOr("odds-ratio", core::OddsRatio(second, first), in), in);
}

std::optional<EffectValue> GivenOddsRatio(const Inputs& in) { return EffectValue{in.Number("odds-ratio")}; }

std::optional<EffectValue> CohensH(const Inputs& in) {
  const auto [first, second] = ProportionsOf(in);
  return WithInterval(core::CohensH, GivenOr("effect-h", core::CohensH(second, first), in), in);
}

const std::string borenstein = "Borenstein et al. (2009), Introduction to Meta-Analysis, ";

void AddProportions(std::vector<EffectFormula>& formulas) {
  const std::string wilson =
      borenstein +
      "chapter 5; its interval by its score (Wilson 1927, Journal of the American Statistical Association 22, 209-212)";
  formulas.push_back({.effect = "proportion1",
                      .compute = FirstProportion,
                      .formula = "p1 = events / size in the first group",
                      .source = wilson});
  formulas.push_back({.effect = "proportion2",
                      .compute = SecondProportion,
                      .formula = "p2, from p1 and the effect where that is given",
                      .source = wilson});
}

void AddRatios(std::vector<EffectFormula>& formulas) {
  formulas.push_back({.effect = "risk-difference",
                      .compute = RiskDifference,
                      .formula = "p2 - p1",
                      .source = borenstein +
                                "chapter 5; its interval by the scores of both proportions (Newcombe 1998, "
                                "Statistics in Medicine 17, 873-890, method 10)"});
  formulas.push_back({.effect = "risk-ratio",
                      .compute = RiskRatio,
                      .formula = "p2 / p1",
                      .source = borenstein +
                                "chapter 5; its interval by the logarithm (Katz et al. 1978, Biometrics 34, "
                                "469-474)"});
  formulas.push_back({.effect = "odds-ratio",
                      .needs = {"proportion1"},
                      .compute = OddsRatio,
                      .formula = "p2 / (1 - p2) / (p1 / (1 - p1))",
                      .source = borenstein + "chapter 5; its interval by the logarithm (Woolf 1955, Annals of Human "
                                             "Genetics 19, 251-253)"});
  formulas.push_back({.effect = "odds-ratio",
                      .needs = {"odds-ratio"},
                      .compute = GivenOddsRatio,
                      .formula = "odds ratio as given",
                      .source = borenstein + "chapter 5"});
  formulas.push_back({.effect = "odds-ratio",
                      .compute = OddsRatio,
                      .formula = "p2 / (1 - p2) / (p1 / (1 - p1))",
                      .source = borenstein + "chapter 5; its interval by the logarithm (Woolf 1955, Annals of Human "
                                             "Genetics 19, 251-253)"});
  formulas.push_back({.effect = "log-odds-ratio",
                      .from = "odds-ratio",
                      .map = [](double ratio, const Inputs&) { return std::log(ratio); },
                      .formula = "ln(odds ratio)",
                      .source = borenstein + "chapter 5"});
  formulas.push_back({.effect = "h",
                      .compute = CohensH,
                      .formula = "h = 2 asin(sqrt(p2)) - 2 asin(sqrt(p1)); its interval h -+ z sqrt(1 / n1 + 1 / n2)",
                      .source =
                          "Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., section "
                          "6.2"});
}

void AddApproximations(std::vector<EffectFormula>& formulas) {
  formulas.push_back(
      {.effect = "approximate-d",
       .from = "odds-ratio",
       .map = [](double ratio, const Inputs&) { return core::CohensDOfOddsRatio(ratio); },
       .formula = "d = ln(odds ratio) sqrt(3) / pi",
       .source = "Chinn (2000), Statistics in Medicine 19, 3127-3131; " + borenstein + "chapter 7",
       .note = "Cohen's d and r are approximate: those of a logistic distribution that was cut in two."});
  formulas.push_back({.effect = "approximate-r",
                      .from = "approximate-d",
                      .map = [](double d, const Inputs&) { return core::CorrelationOfCohensD(d); },
                      .formula = "r = d / sqrt(d^2 + 4)",
                      .source = borenstein + "chapter 7"});
}

}  // namespace

void AddEffectsOfProportions(Effects& effects) {
  effects.sizes.insert(
      effects.sizes.end(),
      {{"proportion1", "first proportion", "the first proportion"},
       {"proportion2", "second proportion", "the second proportion"},
       {"risk-difference", "risk difference (second minus first)"},
       {"risk-ratio", "risk ratio (second over first)"},
       {"odds-ratio", "odds ratio (second over first)", "the odds ratio of the second group over the first"},
       {"log-odds-ratio", "logarithm of the odds ratio"},
       {"h", "Cohen's h (second minus first)", "Cohen's h of the second group minus the first"},
       {"approximate-d", "Cohen's d, approximate", "the approximate Cohen's d"},
       {"approximate-r", "correlation r, approximate"}});
  AddProportions(effects.formulas);
  AddRatios(effects.formulas);
  AddApproximations(effects.formulas);
}

}  // namespace planner
