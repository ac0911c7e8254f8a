#include "catalogue/effects_inputs.h"
#include "catalogue/effects_parts.h"
#include "catalogue/effects_sources.h"

namespace planner {
namespace {

namespace core = kelpower::effects;

std::optional<EffectValue> FSquared(const Inputs& in) {
  const std::optional<core::FStatistic> test = FTestOf(in);
  return ValueOr(test ? core::FSquared(*test, in.Alpha()) : std::nullopt, FSquaredOf(in));
}

void AddFSquared(std::vector<EffectFormula>& formulas) {
  formulas.push_back({.effect = "f2",
                      .needs = {"f-statistic"},
                      .compute = FSquared,
                      .formula = "f2 = F df1 / df2",
                      .source = Cohen("9.2") + ByNoncentralityOfF()});
  formulas.push_back({.effect = "f2",
                      .needs = {"effect-f2"},
                      .compute = FSquared,
                      .formula = "f2 as given",
                      .source = Cohen("9.2") + ByNoncentralityOfF()});
  formulas.push_back({.effect = "f2",
                      .needs = {"effect-f"},
                      .compute = FSquared,
                      .formula = "f2 = f^2",
                      .source = Cohen("8.2") + ByNoncentralityOfF()});
  formulas.push_back({.effect = "f2",
                      .needs = {"eta-squared"},
                      .compute = FSquared,
                      .formula = "f2 = eta2 / (1 - eta2)",
                      .source = Cohen("8.2") + ByNoncentralityOfF()});
  formulas.push_back({.effect = "f2",
                      .needs = {"r-squared"},
                      .compute = FSquared,
                      .formula = "f2 = R2 / (1 - R2)",
                      .source = Cohen("9.2") + ByNoncentralityOfF()});
  formulas.push_back({.effect = "f2",
                      .from = "f",
                      .map = [](double f, const Inputs&) { return f * f; },
                      .course = Course::OfMagnitude,
                      .formula = "f2 = f^2",
                      .source = Cohen("8.2")});
  formulas.push_back({.effect = "f2",
                      .from = "r",
                      .map = [](double r, const Inputs&) { return r * r / ((1 - r) * (1 + r)); },
                      .course = Course::OfMagnitude,
                      .formula = "f2 = r^2 / (1 - r^2)",
                      .source = Cohen("9.2")});
}

}  // namespace

void AddEffectsOfVariance(Effects& effects) {
  effects.sizes.insert(effects.sizes.end(), {{"f", "Cohen's f"},
                                             {"f2", "f squared"},
                                             {"eta-squared", "eta squared"},
                                             {"omega-squared", "omega squared"},
                                             {"r-squared", "R squared"},
                                             {"adjusted-r-squared", "adjusted R squared"}});
  AddFSquared(effects.formulas);
}

}  // namespace planner
