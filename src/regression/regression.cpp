#include "regression/regression.h"

#include <cmath>
#include <limits>

#include "frame/checks.h"
#include "frame/increasing_search.h"
#include "kelpower.h"
#include "regression/multiple_correlation.h"

namespace kelpower {

// Below -1e16 the quotient would round to 1, which is a correlation.
RegressionEffect RegressionEffect::OfFSquared(double fSquared) {
  if (fSquared < 0) return {std::numeric_limits<double>::quiet_NaN(), fSquared};
  return {std::isinf(fSquared) ? 1.0 : fSquared / (1 + fSquared), fSquared};
}

bool ModelFit::IsRejected() const {
  if (reducedRSquared == 0) return std::fabs(full) >= 1;
  return RejectsOpenUnit(reducedRSquared) || RejectsOpenUnit(full);
}

std::optional<RegressionEffect> ModelFit::Effect() const {
  if (IsRejected()) return std::nullopt;
  if (reducedRSquared != 0 && reducedRSquared > full) return std::nullopt;
  const double rhoSquared = reducedRSquared == 0 ? full * full : (full - reducedRSquared) / (1 - reducedRSquared);
  return RegressionEffect{rhoSquared, rhoSquared / (1 - rhoSquared)};
}

RegressionTest::RegressionTest(const RegressionModel& model, double sampleSize)
    : sampleSize_(sampleSize),
      randomPredictors_(model.randomPredictors != 0),
      test_(FTest::AtLevel(model.alpha, model.tested, sampleSize - model.Intercept() - model.predictors, 1e-10)) {}

double RegressionTest::Power(const RegressionEffect& effect) const {
  if (randomPredictors_) return 1 - CdfSquaredMultipleCorrelation(test_, effect.rhoSquared);
  return test_.Power(sampleSize_ * effect.fSquared);
}

std::optional<RegressionTest> RegressionTest::Checked(const RegressionModel& model, double sampleSize) {
  if (RejectsSampleSize(model, sampleSize)) return std::nullopt;
  if (RejectsPredictors(model)) return std::nullopt;
  if (RejectsOpenUnit(model.alpha)) return std::nullopt;
  return RegressionTest(model, sampleSize);
}

double RegressionTest::PowerOrRejected(const std::optional<RegressionTest>& test,
                                       const std::optional<RegressionEffect>& effect) {
  return test && effect ? test->Power(*effect) : -1;
}

double RegressionPower(const RegressionModel& model, double sampleSize, const std::optional<RegressionEffect>& effect) {
  if (!effect) return -1;
  return RegressionTest::PowerOrRejected(RegressionTest::Checked(model, sampleSize), effect);
}

namespace {

/// The size that reaches `power`, in [p + 1 + intercept, p + 400] or, by widening, above. An effect that is rejected
/// stays below every target, so the search ends with the missing value.
/// The power does not fall as the size grows (see `FTest`): the noncentrality is N f^2, or f^2 times a chi-squared
/// variable on N - 1 degrees of freedom for random predictors, and the error degrees of freedom grow with N.
double SizeForPower(double power, const RegressionModel& model, const std::optional<RegressionEffect>& effect) {
  constexpr double kTolerance = 1e-9;
  const double lower = model.predictors + 1 + model.Intercept();  // leaves one error degree of freedom
  const double upper = model.predictors + 400;
  const auto powerAt = [&](double sampleSize) { return RegressionPower(model, sampleSize, effect); };
  return SolveIncreasingPower(lower, upper, kTolerance, powerAt, power, nullptr);
}

}  // namespace

}  // namespace kelpower

using namespace kelpower;

extern "C" double Powerbymlr(double sampleSize, double predictors, double testedPredictors, double fullModelFit,
                             double reducedRSquared, int randomPredictors, std::uint8_t includeIntercept,
                             double alpha) {
  const RegressionModel model{predictors, testedPredictors, randomPredictors, includeIntercept, alpha};
  return RegressionPower(model, sampleSize, ModelFit{fullModelFit, reducedRSquared}.Effect());
}

extern "C" double PowerbymlrwES(double sampleSize, double predictors, double testedPredictors, double effectSize,
                                int randomPredictors, std::uint8_t includeIntercept, double alpha) {
  const RegressionModel model{predictors, testedPredictors, randomPredictors, includeIntercept, alpha};
  return RegressionPower(model, sampleSize, RegressionEffect::OfFSquared(effectSize));
}

extern "C" double PowerReversebymlr(double power, double predictors, double testedPredictors, double fullModelFit,
                                    double reducedRSquared, int randomPredictors, std::uint8_t includeIntercept,
                                    double alpha) {
  const RegressionModel model{predictors, testedPredictors, randomPredictors, includeIntercept, alpha};
  return SizeForPower(power, model, ModelFit{fullModelFit, reducedRSquared}.Effect());
}

extern "C" double PowerReversebymlrwES(double power, double predictors, double testedPredictors, double effectSize,
                                       int randomPredictors, std::uint8_t includeIntercept, double alpha) {
  const RegressionModel model{predictors, testedPredictors, randomPredictors, includeIntercept, alpha};
  return SizeForPower(power, model, RegressionEffect::OfFSquared(effectSize));
}
