#include <cmath>
#include <optional>

#include "catalogue/effects_inputs.h"
#include "catalogue/effects_parts.h"
#include "catalogue/effects_sources.h"

namespace planner {
namespace {

namespace core = kelpower::effects;

/// An effect size of the F test behind the inputs.
using OfFTest = std::optional<core::Estimate> (*)(const core::FStatistic&, double alpha);

template <OfFTest Estimated>
EffectValue WithInterval(double value, const Inputs& in) {
  const std::optional<core::FStatistic> test = FTestOf(in);
  return ValueOr(test ? Estimated(*test, in.Alpha()) : std::nullopt, value);
}

std::optional<EffectValue> GivenF(const Inputs& in) { return WithInterval<core::CohensF>(in.Number("effect-f"), in); }

std::optional<EffectValue> GivenEtaSquared(const Inputs& in) {
  return WithInterval<core::EtaSquared>(in.Number("eta-squared"), in);
}

std::optional<EffectValue> GivenRSquared(const Inputs& in) {
  return WithInterval<core::EtaSquared>(in.Number("r-squared"), in);
}

double NoncentralityOfF(double fSquared, const Inputs& in) {
  const std::optional<core::FStatistic> test = FTestOf(in);
  return test ? fSquared * test->size : NAN;
}

}  // namespace

void AddEffectsFromFSquared(Effects& effects) {
  std::vector<EffectFormula>& formulas = effects.formulas;
  const auto share = [](double fSquared, const Inputs&) { return core::EtaSquaredOfFSquared(fSquared); };
  formulas.push_back({.effect = "f",
                      .needs = {"effect-f"},
                      .compute = GivenF,
                      .formula = "f as given",
                      .source = Cohen("8.2") + ByNoncentralityOfF()});
  formulas.push_back({.effect = "f",
                      .from = "f2",
                      .map = [](double fSquared, const Inputs&) { return std::sqrt(fSquared); },
                      .formula = "f = sqrt(f2)",
                      .source = Cohen("8.2")});
  formulas.push_back({.effect = "eta-squared",
                      .needs = {"eta-squared"},
                      .compute = GivenEtaSquared,
                      .formula = "eta2 as given",
                      .source = Cohen("8.2") + ByNoncentralityOfF()});
  formulas.push_back(
      {.effect = "eta-squared", .from = "f2", .map = share, .formula = "eta2 = f2 / (1 + f2)", .source = Cohen("8.2")});
  formulas.push_back({.effect = "r-squared",
                      .needs = {"r-squared"},
                      .compute = GivenRSquared,
                      .formula = "R2 as given",
                      .source = Cohen("9.2") + ByNoncentralityOfF()});
  formulas.push_back({.effect = "r-squared",
                      .from = "r",
                      .map = [](double r, const Inputs&) { return r * r; },
                      .course = Course::OfMagnitude,
                      .formula = "r squared",
                      .source = Cohen("9.2")});
  formulas.push_back(
      {.effect = "r-squared", .from = "f2", .map = share, .formula = "R2 = f2 / (1 + f2)", .source = Cohen("9.2")});
  AddCorrectedShares(effects);
  formulas.push_back({.effect = "noncentrality",
                      .from = "f2",
                      .map = NoncentralityOfF,
                      .formula = "noncentrality of F = N f2",
                      .source = "Smithson (2001), Educational and Psychological Measurement 61, 605-632"});
}

}  // namespace planner
