#ifndef KELPOWER_EXPORTS_REGRESSION_MODEL_H
#define KELPOWER_EXPORTS_REGRESSION_MODEL_H

#include <cstdint>
#include <optional>

#include "regression/test_of_predictors.h"

namespace kelpower::exports {

inline regression::Model ModelOf(double predictors, double tested, int randomPredictors, std::uint8_t includeIntercept,
                                 double alpha) {
  return {predictors, tested, randomPredictors != 0, includeIntercept != 0, alpha};
}

/// The fit of the full and the reduced model. The full one is a multiple correlation R where the reduced one is 0, and
/// an R squared otherwise; that difference is intended.
struct ModelFit {
  double full;
  double reducedRSquared;

  /// Rejects what cannot be a fit. That the reduced model fits better is not checked here.
  bool IsRejected() const;

  /// No effect where the fit is rejected or the reduced model fits better than the full one.
  std::optional<regression::Effect> Effect() const;
};

/// The power; -1 for invalid input or no effect.
double PowerOrInvalid(const std::optional<regression::RegressionTest>& test,
                      const std::optional<regression::Effect>& effect);
double PowerOrInvalid(const regression::Model& model, double sampleSize,
                      const std::optional<regression::Effect>& effect);

}  // namespace kelpower::exports

#endif
