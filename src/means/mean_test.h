#ifndef KELPOWER_MEANS_MEAN_TEST_H
#define KELPOWER_MEANS_MEAN_TEST_H

#include <cmath>
#include <optional>

#include "frame/function_view.h"
#include "frame/increasing_search.h"
#include "frame/rejection.h"

namespace kelpower {

/// Which alternative a test of means has: one-sided, in the direction in which the effect lies, or two-sided.
enum class Sides { One, Two };

inline Sides SidesOf(int directional) { return directional != 0 ? Sides::One : Sides::Two; }

/// A t test of a mean or of a difference of means, at a given design. The effect is in the unit of the standard error:
/// a standardised effect size, or a raw difference.
class MeanTest {
public:
  MeanTest(Sides sides, double alpha, double df, double standardError)
      : test_(sides == Sides::One ? TTest::OneSided(alpha, df) : TTest::TwoSided(alpha, df)),
        standardError_(standardError),
        sides_(sides) {}

  double Power(double effect) const {
    return sides_ == Sides::One ? test_.PowerUpperTail(std::fabs(effect) / standardError_)
                                : test_.PowerBothTails(effect / standardError_);
  }

private:
  TTest test_;
  double standardError_;
  Sides sides_;
};

/// The power at `effect`; missing where there is no test because its design was rejected.
double PowerOrMissing(const std::optional<MeanTest>& test, double effect);

/// The size at which `powerAt` reaches `power`, searched from 2 on, below which there is no estimate of the variance.
/// Unrounded; missing where no size reaches it. The power must not fall as the size grows; that of the tests of means
/// does not (see `TTest`), because their noncentrality and their degrees of freedom grow with it. At a level above 1,
/// which some of them do not check, it falls, so that a target that is missed at 2 is missed at every size.
double SizeForPower(FunctionView<double(double size)> powerAt, double power);

/// The size that solves the equation of a half-width; likewise from 2 on.
double SizeForHalfWidth(const HalfWidthEquation& equation);

/// Where the axis of effect sizes from `minEffectSize` on starts. For a two-sided test -5 asks for a start at 0, and
/// any other negative effect is refused (no start).
std::optional<double> EffectSizeStart(Sides sides, double minEffectSize);

/// A power of two near `x` by which terms can be divided, exactly, before they are squared. It is 1 for 0 and for what
/// is not finite.
double BinaryScale(double x);

}  // namespace kelpower

#endif
