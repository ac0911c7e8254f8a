#ifndef KELPOWER_EXPECTED_POWER_EXPECTED_POWER_H
#define KELPOWER_EXPECTED_POWER_EXPECTED_POWER_H

#include "frame/answer.h"
#include "frame/counts.h"
#include "frame/function_view.h"
#include "frame/stop.h"

// The power holds at one assumed effect. Who is uncertain of it can average the power over what is believed: the
// expected power, also called assurance or probability of success (Spiegelhalter and Freedman 1986, Statistics in
// Medicine 5, 1-13; O'Hagan, Stevens and Campbell 2005, Pharmaceutical Statistics 4, 187-201).

namespace kelpower::expected_power {

/// What is believed of an effect: that it is normally distributed.
struct Belief {
  double mean;
  double sd;        ///< 0 for a certain effect
  double null = 0;  ///< the effect that the test takes for none; the power of a large study bends near it
};

/// The power of a test, 0 to 1, at an effect of either sign; the direction that the test looks for stays the same. It is
/// asked at effects up to 8.5 standard deviations of the belief from its mean, impossible ones among them.
using PowerOfEffect = FunctionView<double(double effect)>;

/// The power averaged over the belief; absolute error below 1e-10. That holds for a power which depends on the distance
/// of the effect from the null in standard errors, however small these are. Refused for a negative standard deviation.
/// NaN where the power is.
Answer ExpectedPower(PowerOfEffect powerAt, const Belief& belief);

/// Which rejections count as a success.
enum class Success {
  AboveNull,  ///< those that find the effect above the null: of a one-sided test, or of that tail of a two-sided one
  EitherDirection  ///< all of a two-sided test, on whichever side of the null the effect lies
};

/// What the expected power tends to as the size grows, and does not pass however large the study is: the probability
/// that the effect lies above the null, or 1. Refused for a negative standard deviation, and for an effect that is
/// certain to be the null, where every size has the power of the test's level.
Answer Limit(const Belief& belief, Success success);

/// The sizes among which one is searched: whole numbers from 1 to `largestCount`.
struct Sizes {
  double smallest;
  double largest = largestCount;
};

/// The first size that has the expected power `wished`, in (0, 1). `expectedAt` is `ExpectedPower` of the test at a size,
/// which computes once what the power at every effect shares; a NaN reaches nothing.
///
/// The power is to rise with the size where the effect is above the null, or on both sides where either direction
/// counts. Then the expected power of either direction rises too. That of one direction rises where the mean is not
/// below the null and the level at most 1 / 2; otherwise it may fall before it rises, never to reach 1 / 2. So a test
/// of a normal statistic behaves, with x = 1 / standard error: its expected power is Phi((m x - z) / sqrt(1 + S^2 x^2)),
/// whose argument has the sign of m + z S^2 x in its derivative. Other tests are taken to be like it. In each case the
/// bisection finds the first size, because one that is missed at the smallest is passed once.
///
/// Not reached where the limit is not above `wished` or no size up to the largest has it. Refused for other sizes.
Answer FirstSize(FunctionView<Answer(double size)> expectedAt, const Belief& belief, Success success, double wished,
                 const Sizes& sizes, Stop stop = {});

}  // namespace kelpower::expected_power

#endif
