#include <cmath>

#include "catalogue/effects_inputs.h"
#include "catalogue/effects_parts.h"
#include "catalogue/effects_sources.h"
#include "effects/correlation.h"
#include "effects/mean_difference.h"

namespace planner {
namespace {

namespace core = kelpower::effects;

std::optional<EffectValue> RiskRatio(const Inputs& in) {
  const auto [first, second] = ProportionsOf(in);
  return GivenOr("risk-ratio", second / first, core::RiskRatio, in);
}

std::optional<EffectValue> OddsRatio(const Inputs& in) {
  const auto [first, second] = ProportionsOf(in);
  return GivenOr("odds-ratio", core::OddsRatio(second, first), core::OddsRatio, in);
}

std::optional<EffectValue> GivenOddsRatio(const Inputs& in) { return EffectValue{in.Number("odds-ratio")}; }

void AddRatios(std::vector<EffectFormula>& formulas) {
  const std::string woolf =
      Borenstein("5") + "; its interval by the logarithm (Woolf 1955, Annals of Human Genetics 19, 251-253)";
  formulas.push_back({.effect = "risk-ratio",
                      .compute = RiskRatio,
                      .formula = "p2 / p1",
                      .source = Borenstein("5") + "; its interval by the logarithm (Katz et al. 1978, Biometrics 34, "
                                                  "469-474)"});
  formulas.push_back({.effect = "odds-ratio",
                      .needs = {"proportion1"},
                      .compute = OddsRatio,
                      .formula = "p2 / (1 - p2) / (p1 / (1 - p1))",
                      .source = woolf});
  formulas.push_back({.effect = "odds-ratio",
                      .needs = {"odds-ratio"},
                      .compute = GivenOddsRatio,
                      .formula = "odds ratio as given",
                      .source = Borenstein("5")});
  formulas.push_back(
      {.effect = "odds-ratio", .compute = OddsRatio, .formula = "p2 / (1 - p2) / (p1 / (1 - p1))", .source = woolf});
  formulas.push_back({.effect = "log-odds-ratio",
                      .from = "odds-ratio",
                      .map = [](double ratio, const Inputs&) { return std::log(ratio); },
                      .formula = "ln(odds ratio)",
                      .source = Borenstein("5")});
}

void AddApproximations(std::vector<EffectFormula>& formulas) {
  formulas.push_back(
      {.effect = "approximate-d",
       .from = "odds-ratio",
       .map = [](double ratio, const Inputs&) { return core::CohensDOfOddsRatio(ratio); },
       .formula = "d = ln(odds ratio) sqrt(3) / pi",
       .source = "Chinn (2000), Statistics in Medicine 19, 3127-3131; " + Borenstein("7"),
       .note = "Cohen's d and r are approximate: those of a logistic distribution that was cut in two."});
  formulas.push_back({.effect = "approximate-r",
                      .from = "approximate-d",
                      .map = [](double d, const Inputs&) { return core::CorrelationOfCohensD(d); },
                      .formula = "r = d / sqrt(d^2 + 4)",
                      .source = Borenstein("7")});
}

}  // namespace

void AddEffectsOfRatios(Effects& effects) {
  AddRatios(effects.formulas);
  AddApproximations(effects.formulas);
}

}  // namespace planner
