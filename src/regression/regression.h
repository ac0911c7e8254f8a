#ifndef KELPOWER_REGRESSION_REGRESSION_H
#define KELPOWER_REGRESSION_REGRESSION_H

#include <cstdint>
#include <optional>

#include "frame/rejection.h"

namespace kelpower {

/// What is tested, with which model of the predictors and at which level.
struct RegressionModel {
  double predictors;
  double tested;
  int randomPredictors;
  std::uint8_t includeIntercept;
  double alpha;

  double Intercept() const { return includeIntercept != 0 ? 1 : 0; }
};

inline bool RejectsPredictors(const RegressionModel& model) {
  return model.predictors < 1 || model.tested < 1 || model.tested > model.predictors;
}

inline bool RejectsSampleSize(const RegressionModel& model, double sampleSize) {
  return model.predictors + 1 + model.Intercept() > sampleSize;
}

/// The population effect of the tested predictors.
struct RegressionEffect {
  double rhoSquared;
  double fSquared;

  static RegressionEffect OfFSquared(double fSquared);
};

/// The fit of the full and the reduced model. The full one is a multiple correlation R where the reduced one is 0, and
/// an R squared otherwise; that difference is intended.
struct ModelFit {
  double full;
  double reducedRSquared;

  /// Rejects what cannot be a fit. That the reduced model fits better is not checked here.
  bool IsRejected() const;

  /// No effect where the fit is rejected or the reduced model fits better than the full one.
  std::optional<RegressionEffect> Effect() const;
};

/// The test at one sample size, for any effect.
class RegressionTest {
public:
  RegressionTest(const RegressionModel& model, double sampleSize);

  double Power(const RegressionEffect& effect) const;

  /// -1 where there is no test or no effect.
  static double PowerOrRejected(const std::optional<RegressionTest>& test,
                                const std::optional<RegressionEffect>& effect);

  /// No test where the model, its level or the sample size is rejected.
  static std::optional<RegressionTest> Checked(const RegressionModel& model, double sampleSize);

private:
  double sampleSize_;
  bool randomPredictors_;
  FTest test_;
};

/// The power; -1 for invalid input.
double RegressionPower(const RegressionModel& model, double sampleSize, const std::optional<RegressionEffect>& effect);

}  // namespace kelpower

#endif
