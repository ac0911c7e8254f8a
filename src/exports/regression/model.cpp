#include "exports/regression/model.h"

#include <cmath>

#include "exports/sentinels.h"
#include "frame/checks.h"

namespace kelpower::exports {

using regression::Effect;
using regression::RegressionTest;

bool ModelFit::IsRejected() const {
  if (reducedRSquared == 0) return std::fabs(full) >= 1;
  return RejectsOpenUnit(reducedRSquared) || RejectsOpenUnit(full);
}

std::optional<Effect> ModelFit::Effect() const {
  if (IsRejected()) return std::nullopt;
  if (reducedRSquared == 0) return regression::Effect::OfRhoSquared(full * full);
  if (reducedRSquared > full) return std::nullopt;
  return regression::Effect::OfRSquared(full, reducedRSquared);
}

double PowerOrInvalid(const std::optional<RegressionTest>& test, const std::optional<Effect>& effect) {
  return test && effect ? test->Power(*effect) : invalid;
}

double PowerOrInvalid(const regression::Model& model, double sampleSize, const std::optional<Effect>& effect) {
  if (!effect) return invalid;
  return OrSentinel(regression::Power(model, sampleSize, *effect));
}

}  // namespace kelpower::exports
