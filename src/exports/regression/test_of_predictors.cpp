#include "regression/test_of_predictors.h"

#include "exports/regression/model.h"
#include "exports/sentinels.h"
#include "kelpower.h"

using namespace kelpower;
using namespace kelpower::exports;

namespace {

/// The power -1 of invalid input takes part in the search as it is, so that a rejected effect stays below every target
/// above -1; that is intended.
double SizeOrMissing(double power, const regression::Model& model, const std::optional<regression::Effect>& effect) {
  const auto powerAt = [&](double sampleSize) { return PowerOrInvalid(model, sampleSize, effect); };
  return OrMissing(SizeForPower(model, powerAt, power));
}

}  // namespace

extern "C" double Powerbymlr(double sampleSize, double predictors, double testedPredictors, double fullModelFit,
                             double reducedRSquared, int randomPredictors, std::uint8_t includeIntercept,
                             double alpha) {
  const auto model = ModelOf(predictors, testedPredictors, randomPredictors, includeIntercept, alpha);
  return PowerOrInvalid(model, sampleSize, ModelFit{fullModelFit, reducedRSquared}.Effect());
}

extern "C" double PowerbymlrwES(double sampleSize, double predictors, double testedPredictors, double effectSize,
                                int randomPredictors, std::uint8_t includeIntercept, double alpha) {
  const auto model = ModelOf(predictors, testedPredictors, randomPredictors, includeIntercept, alpha);
  return PowerOrInvalid(model, sampleSize, regression::Effect::OfFSquared(effectSize));
}

extern "C" double PowerReversebymlr(double power, double predictors, double testedPredictors, double fullModelFit,
                                    double reducedRSquared, int randomPredictors, std::uint8_t includeIntercept,
                                    double alpha) {
  const auto model = ModelOf(predictors, testedPredictors, randomPredictors, includeIntercept, alpha);
  return SizeOrMissing(power, model, ModelFit{fullModelFit, reducedRSquared}.Effect());
}

extern "C" double PowerReversebymlrwES(double power, double predictors, double testedPredictors, double effectSize,
                                       int randomPredictors, std::uint8_t includeIntercept, double alpha) {
  const auto model = ModelOf(predictors, testedPredictors, randomPredictors, includeIntercept, alpha);
  return SizeOrMissing(power, model, regression::Effect::OfFSquared(effectSize));
}
