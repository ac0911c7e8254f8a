#ifndef KELPOWER_PLANNER_CATALOGUE_EXPECTED_H
#define KELPOWER_PLANNER_CATALOGUE_EXPECTED_H

#include <cmath>

#include "catalogue/core.h"
#include "expected_power/expected_power.h"
#include "frame/rejection.h"
#include "means/t_test_of_a_mean.h"
#include "model/offers.h"

// The power expected under a normal uncertainty about an effect. What counts is that the test finds the effect in the
// direction in which it is expected to lie.
namespace planner {

/// What is believed of an effect in its own direction.
inline kelpower::expected_power::Belief BeliefIn(double effect, double sd) { return {std::fabs(effect), sd}; }

/// Of a t test: the tail on the side of the effect, which of a two-sided test has half of the level. The numerator of t,
/// in standard errors, is normal about the effect with variance 1, and about the effect believed in with the variance
/// 1 + (sd / standard error)^2. So t is noncentral t times the root of this, and nothing need be integrated.
inline double ExpectedPowerOfT(const kelpower::means::TTestOfAMean& test, double effect, double sd) {
  const double spread = std::hypot(1, sd / test.StandardError());
  const kelpower::TTest& plain = test.AtCriticalValue();
  const kelpower::TTest narrowed{plain.df, plain.critical / spread};
  return narrowed.PowerUpperTail(std::fabs(effect) / test.StandardError() / spread);
}

/// The probability that the effect has the direction expected.
inline double LimitOfExpectedPower(double effect, double sd) {
  using kelpower::expected_power::Limit;
  return OrNaN(Limit(BeliefIn(effect, sd), kelpower::expected_power::Success::AboveNull));
}

}  // namespace planner

#endif
