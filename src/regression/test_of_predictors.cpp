#include "regression/test_of_predictors.h"

#include <cmath>
#include <limits>

#include "frame/checks.h"
#include "frame/increasing_search.h"
#include "frame/root_finders.h"
#include "regression/multiple_correlation.h"

namespace kelpower::regression {

namespace {

/// From about this many tested predictors on the noncentral F is summed over too few terms to be as accurate as the
/// faster search needs. With 1e9 of them the computed power falls by 3e-6 somewhere.
constexpr double mostPreciselyTested = 1e6;

}  // namespace

bool RejectsPredictors(const Model& model) {
  return model.predictors < 1 || model.tested < 1 || model.tested > model.predictors;
}

bool RejectsSize(const Model& model, double size) { return model.predictors + 1 + model.Intercept() > size; }

// Below -1e16 the quotient would round to 1, which is a correlation.
Effect Effect::OfFSquared(double fSquared) {
  if (fSquared < 0) return {std::numeric_limits<double>::quiet_NaN(), fSquared};
  return {std::isinf(fSquared) ? 1.0 : fSquared / (1 + fSquared), fSquared};
}

RegressionTest::RegressionTest(const Model& model, double size)
    : size_(size),
      isRandom_(model.isRandom),
      test_(FTest::AtLevel(model.alpha, model.tested, size - model.Intercept() - model.predictors, 1e-10)) {}

double RegressionTest::Power(const Effect& effect) const {
  if (isRandom_) return 1 - CdfSquaredMultipleCorrelation(test_, effect.rhoSquared);
  return test_.Power(Noncentrality(effect));
}

double RegressionTest::PowerOfMany(const Effect& effect) {
  if (isRandom_) return Power(effect);
  if (!many_) many_.emplace(test_);
  return many_->Power(size_ * effect.fSquared);
}

std::optional<RegressionTest> RegressionTest::Checked(const Model& model, double size) {
  if (RejectsSize(model, size)) return std::nullopt;
  if (RejectsPredictors(model)) return std::nullopt;
  if (RejectsOpenUnit(model.alpha)) return std::nullopt;
  return RegressionTest(model, size);
}

Answer Power(const Model& model, double size, const Effect& effect) {
  const auto test = RegressionTest::Checked(model, size);
  return test ? Answer(test->Power(effect)) : NoValue::Refused;
}

// The power does not fall as the size grows (see `FTest`): the noncentrality is N f^2, or f^2 times a chi-squared
// variable on N - 1 degrees of freedom for random predictors, and the error degrees of freedom grow with N.
Answer SizeForPower(const Model& model, FunctionView<double(double)> powerAt, double power) {
  constexpr double tolerance = 1e-9;
  const double lower = model.predictors + 1 + model.Intercept();  // leaves one error degree of freedom
  const double upper = model.predictors + 400;
  if (model.tested > mostPreciselyTested) return SolvePower(lower, upper, tolerance, powerAt, power, {});
  return SolveIncreasingPower(lower, upper, tolerance, powerAt, power, {});
}

Answer SizeForPower(const Model& model, const Effect& effect, double power) {
  const auto powerAt = [&](double size) { return Power(model, size, effect).ValueOr(belowEveryPower); };
  return SizeForPower(model, powerAt, power);
}

}  // namespace kelpower::regression
