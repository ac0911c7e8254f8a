#include "means/independent.h"

#include <algorithm>

#include "frame/checks.h"
#include "frame/scale.h"

namespace kelpower::means {

namespace {

double Square(double x) { return x * x; }

Answer SizeForHalfWidthPooled(double halfWidth, double ratio, double sd, double alpha) {
  const double squaredWidth = Square(halfWidth / sd);
  return SizeForHalfWidth({squaredWidth, 1 / ratio + 1, alpha, [=](double n) { return ratio * n + n - 2; }});
}

// In the units of the measurements, which the search's zero tolerance refers to; scaled only where squares would
// overflow.
Answer SizeForHalfWidthWelch(double halfWidth, double ratio, double sd1, double sd2, double alpha) {
  constexpr double squareable = 0x1p500;
  const double largest = std::max({std::fabs(halfWidth), std::fabs(sd1), std::fabs(sd2)});
  const double scale = largest > squareable ? BinaryScale(largest) / squareable : 1;
  const double squaredWidth = Square(halfWidth / scale);
  const double weight = Square(sd2 / scale) / ratio + Square(sd1 / scale);
  const auto dfAt = [=](double n) { return WelchDifference(n, sd1, ratio * n, sd2).df; };
  const bool dfGrows = 2 * ratio >= 1;  // below one subject in group 2 the formula jumps through infinity
  return SizeForHalfWidth({squaredWidth, weight, alpha, dfAt, dfGrows});
}

}  // namespace

// sd sqrt(1 / n1 + 1 / n2): in reciprocals, so that no size overflows.
DifferenceDistribution PooledDifference(double n1, double n2, double sd) {
  return {n1 + n2 - 2, sd * std::sqrt(1 / n1 + 1 / n2)};
}

// With a_i = sd_i^2 / n_i the standard error is sqrt(a1 + a2) and the degrees of freedom are
// (a1 + a2)^2 / (a1^2 / (n1 - 1) + a2^2 / (n2 - 1)). Both are formed from scaled standard deviations, and the second
// from the shares a_i / (a1 + a2): squares of a_i underflow from sizes of 1e154 on.
DifferenceDistribution WelchDifference(double n1, double sd1, double n2, double sd2) {
  const double scale = BinaryScale(std::max(std::fabs(sd1), std::fabs(sd2)));
  const double a1 = Square(sd1 / scale) / n1;
  const double a2 = Square(sd2 / scale) / n2;
  const double share1 = a1 / (a1 + a2);
  const double share2 = a2 / (a1 + a2);
  const double df = 1 / (share1 * (share1 / (n1 - 1)) + share2 * (share2 / (n2 - 1)));
  return {df, scale * std::sqrt(a1 + a2)};
}

DifferenceDistribution GroupSpreads::At(double n1, double n2) const {
  return isPooled ? PooledDifference(n1, n2, std::fabs(sd1)) : WelchDifference(n1, sd1, n2, sd2);
}

std::optional<TTestOfAMean> TwoSampleTest(const GroupSpreads& spreads, Sides sides, double alpha, double n1,
                                          double n2) {
  if (n1 <= 1) return std::nullopt;
  if (n2 <= 1) return std::nullopt;
  if (RejectsStandardDeviation(spreads.sd1)) return std::nullopt;
  if (RejectsStandardDeviation(spreads.sd2)) return std::nullopt;
  if (RejectsAlpha(alpha)) return std::nullopt;
  const DifferenceDistribution difference = spreads.At(n1, n2);
  return TTestOfAMean(sides, alpha, difference.df, difference.standardError);
}

Answer Power(const TwoSampleDesign& design, double n1, double n2) {
  const auto test = TwoSampleTest(design.spreads, design.sides, design.alpha, n1, n2);
  return test ? Answer(test->Power(design.meanDifference)) : NoValue::Refused;
}

// Just above one subject in group 2, Welch's degrees of freedom are nearly 0 and the quantile of t overflows. The
// computed power is then 0, but 1 where the critical value is negative, that is at one-sided levels above one half.
Answer FirstSizeForPower(const TwoSampleDesign& design, double ratio, double power) {
  const auto powerAt = [&](double n) { return Power(design, n, ratio * n); };
  const bool neverFalls = design.spreads.isPooled || design.sides == Sides::Two || design.alpha <= 0.5;
  return neverFalls ? SizeForPower(powerAt, power) : SizeForUnevenPower(powerAt, power);
}

double HalfWidth(const TwoSampleInterval& interval, double n1, double n2) {
  const DifferenceDistribution difference = interval.spreads.At(n1, n2);
  return IntervalQuantileT(interval.alpha, difference.df) * difference.standardError;
}

// Solves w = t sqrt(sd1^2 / n + sd2^2 / (ratio n)), squared and multiplied by n.
Answer FirstSizeForHalfWidth(const TwoSampleInterval& interval, double ratio, double halfWidth) {
  const auto& [sd1, sd2, isPooled] = interval.spreads;
  return isPooled ? SizeForHalfWidthPooled(halfWidth, ratio, sd1, interval.alpha)
                  : SizeForHalfWidthWelch(halfWidth, ratio, sd1, sd2, interval.alpha);
}

}  // namespace kelpower::means
