#ifndef KELPOWER_PLANNER_CATALOGUE_EXPECTED_H
#define KELPOWER_PLANNER_CATALOGUE_EXPECTED_H

#include <cmath>

#include "catalogue/core.h"
#include "expected_power/expected_power.h"
#include "means/t_test_of_a_mean.h"
#include "model/offers.h"

// The power expected under a normal uncertainty about an effect. What counts is that the test finds the effect in the
// direction in which it is expected to lie.
namespace planner {

/// What is believed of an effect in its own direction.
inline kelpower::expected_power::Belief BeliefIn(double effect, double sd) { return {std::fabs(effect), sd}; }

/// Of a t test: the tail on the side of the effect, which of a two-sided test has half of the level.
inline double ExpectedPowerOfT(const kelpower::means::TTestOfAMean& test, double effect, double sd) {
  const auto powerAt = [&](double at) { return test.AtCriticalValue().PowerUpperTail(at / test.StandardError()); };
  return OrNaN(kelpower::expected_power::ExpectedPower(powerAt, BeliefIn(effect, sd)));
}

/// The probability that the effect has the direction expected.
inline double LimitOfExpectedPower(double effect, double sd) {
  using kelpower::expected_power::Limit;
  return OrNaN(Limit(BeliefIn(effect, sd), kelpower::expected_power::Success::AboveNull));
}

}  // namespace planner

#endif
