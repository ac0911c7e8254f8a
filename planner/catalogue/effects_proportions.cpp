#include "catalogue/effects_inputs.h"
#include "catalogue/effects_parts.h"
#include "catalogue/effects_sources.h"

namespace planner {
namespace {

namespace core = kelpower::effects;

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
  return GivenOr("risk-difference", second - first, core::RiskDifference, in);
}

std::optional<EffectValue> CohensH(const Inputs& in) {
  const auto [first, second] = ProportionsOf(in);
  return GivenOr("effect-h", core::CohensH(second, first), core::CohensH, in);
}

void AddProportions(std::vector<EffectFormula>& formulas) {
  const std::string wilson =
      Borenstein("5") +
      "; its interval by its score (Wilson 1927, Journal of the American Statistical Association 22, 209-212)";
  formulas.push_back({.effect = "proportion1",
                      .compute = FirstProportion,
                      .formula = "p1 = events / size in the first group",
                      .source = wilson});
  formulas.push_back({.effect = "proportion2",
                      .compute = SecondProportion,
                      .formula = "p2, from p1 and the effect where that is given",
                      .source = wilson});
}

void AddDifferences(std::vector<EffectFormula>& formulas) {
  formulas.push_back({.effect = "risk-difference",
                      .compute = RiskDifference,
                      .formula = "p2 - p1",
                      .source = Borenstein("5") + "; its interval by the scores of both proportions (Newcombe 1998, "
                                                  "Statistics in Medicine 17, 873-890, method 10)"});
  formulas.push_back({.effect = "h",
                      .compute = CohensH,
                      .formula = "h = 2 asin(sqrt(p2)) - 2 asin(sqrt(p1)); its interval h -+ z sqrt(1 / n1 + 1 / n2)",
                      .source = Cohen("6.2")});
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
  AddDifferences(effects.formulas);
}

}  // namespace planner
