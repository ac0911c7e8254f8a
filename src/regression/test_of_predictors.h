#ifndef KELPOWER_REGRESSION_TEST_OF_PREDICTORS_H
#define KELPOWER_REGRESSION_TEST_OF_PREDICTORS_H

#include <optional>

#include "frame/answer.h"
#include "frame/function_view.h"
#include "frame/powers_over_effects.h"
#include "frame/rejection.h"

// The F test that some predictors of a multiple linear regression add nothing: all of them, or those beyond a reduced
// model.

namespace kelpower::regression {

/// What is tested, with which model of the predictors and at which level.
struct Model {
  double predictors;  ///< p, of the full model, at least 1
  double tested;      ///< q, of them, at least 1
  bool isRandom;      ///< predictors are multivariate normal, not fixed by design
  bool hasIntercept;
  double alpha;  ///< significance level

  double Intercept() const { return hasIntercept ? 1 : 0; }
};

bool RejectsPredictors(const Model& model);

/// There is no error degree of freedom.
bool RejectsSize(const Model& model, double size);

/// The population effect of the tested predictors.
struct Effect {
  double rhoSquared;  ///< squared multiple correlation of them, given the others
  double fSquared;    ///< the variance that they explain over the unexplained one

  /// rhoSquared is NaN where `fSquared` is negative.
  static Effect OfFSquared(double fSquared);
  static Effect OfRhoSquared(double rhoSquared) { return {rhoSquared, rhoSquared / (1 - rhoSquared)}; }

  /// Of the R squared of the full and of the reduced model.
  static Effect OfRSquared(double full, double reduced) { return OfRhoSquared((full - reduced) / (1 - reduced)); }
};

/// The test at one sample size, for any effect.
class RegressionTest {
public:
  /// No test where the model, its level or the sample size is rejected.
  static std::optional<RegressionTest> Checked(const Model& model, double size);

  double Power(const Effect& effect) const;

  /// The same to 1e-12, faster where many effects of fixed predictors are asked about.
  double PowerOfMany(const Effect& effect);
  /// N f^2, of fixed predictors.
  double Noncentrality(const Effect& effect) const { return size_ * effect.fSquared; }

  const FTest& AtCriticalValue() const { return test_; }

private:
  RegressionTest(const Model& model, double size);

  double size_;
  bool isRandom_;
  FTest test_;
  std::optional<PowersOverEffects> many_;
};

Answer Power(const Model& model, double size, const Effect& effect);

/// The size, unrounded, at which `powerAt` reaches `power`: in [p + 1 + intercept, p + 400] or, by widening, above. It
/// is a number below every power where there is no test.
Answer SizeForPower(const Model& model, FunctionView<double(double size)> powerAt, double power);

/// The same for the test of an effect.
Answer SizeForPower(const Model& model, const Effect& effect, double power);

}  // namespace kelpower::regression

#endif
