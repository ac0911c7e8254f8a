#include <optional>

#include "catalogue/effects_inputs.h"
#include "catalogue/effects_parts.h"

namespace planner {
namespace {

namespace core = kelpower::effects;

std::optional<EffectValue> OmegaSquared(const Inputs& in) {
  const std::optional<core::FStatistic> test = FTestOf(in);
  if (!test) return std::nullopt;
  const std::optional<core::Estimate> estimate = core::OmegaSquared(*test, in.Alpha());
  if (!estimate) return std::nullopt;
  return ValueOr(estimate, estimate->value);
}

/// R squared less its bias; the interval is that of R squared, which it estimates too.
std::optional<EffectValue> AdjustedRSquared(const Inputs& in) {
  const std::optional<core::FStatistic> test = FTestOf(in);
  if (!test) return std::nullopt;
  const double rSquared = core::EtaSquaredOfFSquared(FSquaredOf(in));
  const double adjusted = 1 - (1 - rSquared) * ((test->size - 1) / test->df2);
  return ValueOr(core::EtaSquared(*test, in.Alpha()), adjusted);
}

}  // namespace

void AddCorrectedShares(Effects& effects) {
  std::vector<EffectFormula>& formulas = effects.formulas;
  formulas.push_back({.effect = "omega-squared",
                      .compute = OmegaSquared,
                      .formula = "omega2 = df1 (F - 1) / (df1 (F - 1) + N); its interval is that of eta2",
                      .source = "Olejnik and Algina (2003), Psychological Methods 8, 434-447",
                      .note = "Omega squared is eta squared corrected for bias, and may be below 0."});
  formulas.push_back({.effect = "adjusted-r-squared",
                      .compute = AdjustedRSquared,
                      .formula = "1 - (1 - R2) (n - 1) / (n - predictors - 1); its interval is that of R2",
                      .source = "Ezekiel (1930), Methods of Correlation Analysis",
                      .note = "Adjusted R squared is R squared corrected for bias, and may be below 0."});
}

}  // namespace planner
