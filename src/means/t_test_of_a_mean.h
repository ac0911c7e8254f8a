#ifndef KELPOWER_MEANS_T_TEST_OF_A_MEAN_H
#define KELPOWER_MEANS_T_TEST_OF_A_MEAN_H

#include <cmath>

#include "frame/answer.h"
#include "frame/function_view.h"
#include "frame/half_width_equation.h"
#include "frame/rejection.h"

// What the tests of means share.

namespace kelpower::means {

/// Which alternative a test of means has: one-sided, in the direction in which the effect lies, or two-sided.
enum class Sides { One, Two };

/// A t test of a mean or of a difference of means, at a given design. The effect is in the unit of the standard error:
/// a standardised effect size, or a raw difference.
class TTestOfAMean {
public:
  TTestOfAMean(Sides sides, double alpha, double df, double standardError)
      : test_(sides == Sides::One ? TTest::OneSided(alpha, df) : TTest::TwoSided(alpha, df)),
        standardError_(standardError),
        sides_(sides) {}

  double Power(double effect) const {
    const double noncentrality = Noncentrality(effect);
    return sides_ == Sides::One ? test_.PowerUpperTail(noncentrality) : test_.PowerBothTails(noncentrality);
  }

  /// Of t: that of a one-sided test is positive, because the test looks where the effect lies.
  double Noncentrality(double effect) const {
    return (sides_ == Sides::One ? std::fabs(effect) : effect) / standardError_;
  }

  const TTest& AtCriticalValue() const { return test_; }
  double StandardError() const { return standardError_; }

private:
  TTest test_;
  double standardError_;
  Sides sides_;
};

using PowerAtSize = FunctionView<Answer(double size)>;

/// The size at which `powerAt` reaches `power`, unrounded. It is searched from 2 on, below which there is no estimate
/// of the variance. The power must not fall as the size grows. That of the tests of means does not (see `TTest`),
/// because their noncentrality and their degrees of freedom grow with it. At a level above 1, which some exports
/// accept, the power falls as the size grows; a target that is missed at 2 is then missed everywhere.
Answer SizeForPower(PowerAtSize powerAt, double power);

/// The same for a power that may fall.
Answer SizeForUnevenPower(PowerAtSize powerAt, double power);

/// The size that solves the equation of a half-width, unrounded. It is searched from 2 on as well.
Answer SizeForHalfWidth(const HalfWidthEquation& equation);

}  // namespace kelpower::means

#endif
