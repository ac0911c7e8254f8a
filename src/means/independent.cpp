#include "means/independent.h"

#include <algorithm>

#include "frame/checks.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"

// t test of two independent groups (Cohen 1988, sections 2.2 and 2.3). With unequal standard deviations the degrees of
// freedom are those of Welch (1938, Biometrika 29) and Satterthwaite (1946, Biometrics Bulletin 2).

namespace kelpower {

using KelCommon::KelMV;

namespace {

double Square(double x) { return x * x; }

/// The sampling distribution of a difference of means.
struct Difference {
  double df;
  double standardError;
};

/// sd sqrt(1 / n1 + 1 / n2): in reciprocals, so that no size overflows.
Difference PooledDifference(double n1, double n2, double sd) { return {n1 + n2 - 2, sd * std::sqrt(1 / n1 + 1 / n2)}; }

// With a_i = sd_i^2 / n_i the standard error is sqrt(a1 + a2) and the degrees of freedom are
// (a1 + a2)^2 / (a1^2 / (n1 - 1) + a2^2 / (n2 - 1)). Both are formed from scaled standard deviations, and the second
// from the shares a_i / (a1 + a2): squares of a_i underflow from sizes of 1e154 on.
Difference WelchDifference(double n1, double sd1, double n2, double sd2) {
  const double scale = BinaryScale(std::max(std::fabs(sd1), std::fabs(sd2)));
  const double a1 = Square(sd1 / scale) / n1;
  const double a2 = Square(sd2 / scale) / n2;
  const double share1 = a1 / (a1 + a2);
  const double share2 = a2 / (a1 + a2);
  const double df = 1 / (share1 * (share1 / (n1 - 1)) + share2 * (share2 / (n2 - 1)));
  return {df, scale * std::sqrt(a1 + a2)};
}

Difference IndependentDifference(double n1, double sd1, double n2, double sd2) {
  return sd1 == sd2 ? PooledDifference(n1, n2, std::fabs(sd1)) : WelchDifference(n1, sd1, n2, sd2);
}

double GroupOneSize(double totalSize, double ratio) { return totalSize / (ratio + 1); }

/// Appends both sizes for the unrounded first one. The ratio applies to the unrounded size, and only the second size is
/// raised to 2. Both are appended at once, so that a failed allocation leaves no half of them.
void AppendGroupSizes(double size1, double ratio, DoubleVector& results) {
  if (KelMV::IsMissing(size1)) {
    results.insert(results.end(), 2, size1);
    return;
  }
  const double size2 = std::ceil(size1 * ratio);
  results.insert(results.end(), {std::ceil(size1), 2 > size2 ? 2 : size2});
}

struct RawDesign {
  double mean1;
  double sd1;
  double mean2;
  double sd2;
};

void AppendSizesForPower(Sides sides, double power, double ratio, const RawDesign& design, DoubleVector& results,
                         double alpha) {
  if (!results.empty()) return;
  const double meanDifference = design.mean1 - design.mean2;
  const auto powerAt = [&](double n) {
    return PowerOrMissing(IndependentTest(sides, n, design.sd1, ratio * n, design.sd2, alpha), meanDifference);
  };
  const double size1 = SizeForPower(powerAt, power);
  AppendGroupSizes(size1, ratio, results);
}

void AppendSizesForPowerES(Sides sides, double power, double ratio, double effectSize, DoubleVector& results,
                           double alpha) {
  const auto powerAt = [=](double n) {
    return PowerOrMissing(StandardizedTest(sides, n, ratio * n, alpha), effectSize);
  };
  const double size1 = SizeForPower(powerAt, power);
  AppendGroupSizes(size1, ratio, results);
}

double SizeForHalfWidthPooled(double halfWidth, double ratio, double sd, double alpha) {
  const double squaredWidth = Square(halfWidth / sd);
  return SizeForHalfWidth({squaredWidth, 1 / ratio + 1, alpha, [=](double n) { return ratio * n + n - 2; }});
}

// In the units of the measurements, which the search's zero tolerance refers to; scaled only where squares would
// overflow.
double SizeForHalfWidthWelch(double halfWidth, double ratio, double sd1, double sd2, double alpha) {
  constexpr double kSquareable = 0x1p500;
  const double largest = std::max({std::fabs(halfWidth), std::fabs(sd1), std::fabs(sd2)});
  const double scale = largest > kSquareable ? BinaryScale(largest) / kSquareable : 1;
  const double squaredWidth = Square(halfWidth / scale);
  const double weight = Square(sd2 / scale) / ratio + Square(sd1 / scale);
  const auto dfAt = [=](double n) { return WelchDifference(n, sd1, ratio * n, sd2).df; };
  const bool dfGrows = 2 * ratio >= 1;  // below one subject in group 2 the formula jumps through infinity
  return SizeForHalfWidth({squaredWidth, weight, alpha, dfAt, dfGrows});
}

}  // namespace

std::optional<MeanTest> StandardizedTest(Sides sides, double sampleSize1, double sampleSize2, double alpha) {
  if (sampleSize1 <= 1) return std::nullopt;
  if (sides == Sides::One) {
    if (sampleSize2 <= 1) return std::nullopt;
  } else {
    const double ratio = sampleSize2 / sampleSize1;
    if (ratio <= 0) return std::nullopt;
    if (ratio * sampleSize1 <= 1) return std::nullopt;
  }
  if (RejectsAlpha(alpha)) return std::nullopt;
  const Difference difference = PooledDifference(sampleSize1, sampleSize2, 1);
  return MeanTest(sides, alpha, difference.df, difference.standardError);
}

std::optional<MeanTest> IndependentTest(Sides sides, double sampleSize1, double sd1, double sampleSize2, double sd2,
                                        double alpha) {
  if (sampleSize1 <= 1) return std::nullopt;
  if (sampleSize2 <= 1) return std::nullopt;
  if (RejectsStandardDeviation(sd1)) return std::nullopt;
  if (RejectsStandardDeviation(sd2)) return std::nullopt;
  if (RejectsAlpha(alpha)) return std::nullopt;
  const Difference difference = IndependentDifference(sampleSize1, sd1, sampleSize2, sd2);
  return MeanTest(sides, alpha, difference.df, difference.standardError);
}

std::optional<MeanTest> WelchTestByTotal(Sides sides, double totalSize, double ratio, double sd1, double sd2,
                                         double alpha) {
  const double sampleSize1 = GroupOneSize(totalSize, ratio);
  const double sampleSize2 = sampleSize1 * ratio;
  if (sampleSize1 <= 1) return std::nullopt;
  if (ratio <= 0) return std::nullopt;
  if (sampleSize2 <= 1) return std::nullopt;
  if (RejectsStandardDeviation(sd1)) return std::nullopt;
  if (RejectsStandardDeviation(sd2)) return std::nullopt;
  if (RejectsAlpha(alpha)) return std::nullopt;
  const Difference difference = WelchDifference(sampleSize1, sd1, sampleSize2, sd2);
  return MeanTest(sides, alpha, difference.df, difference.standardError);
}

}  // namespace kelpower

using namespace kelpower;

extern "C" double EffectSizeIndependent(double mean1, double mean2, double sd) {
  if (sd == 0) return KelMV::Missing();
  return (mean1 - mean2) / sd;
}

extern "C" double PowerIndependentNondirectional(double sampleSize1, double mean1, double sd1, double sampleSize2,
                                                 double mean2, double sd2, double alpha) {
  return PowerOrMissing(IndependentTest(Sides::Two, sampleSize1, sd1, sampleSize2, sd2, alpha), mean1 - mean2);
}

extern "C" double PowerIndependentNondirectionalES(double sampleSize1, double sampleSize2, double effectSize,
                                                   double alpha) {
  return PowerOrMissing(StandardizedTest(Sides::Two, sampleSize1, sampleSize2, alpha), effectSize);
}

extern "C" double PowerIndependentDirectional(double sampleSize1, double mean1, double sd1, double sampleSize2,
                                              double mean2, double sd2, double alpha) {
  return PowerOrMissing(IndependentTest(Sides::One, sampleSize1, sd1, sampleSize2, sd2, alpha), mean1 - mean2);
}

extern "C" double PowerIndependentDirectionalES(double sampleSize1, double sampleSize2, double effectSize,
                                                double alpha) {
  return PowerOrMissing(StandardizedTest(Sides::One, sampleSize1, sampleSize2, alpha), effectSize);
}

extern "C" void PowerReverseIndependentNondirectional(double power, double ratio, double mean1, double sd1,
                                                      double mean2, double sd2, DoubleVector& results, double alpha) {
  AppendSizesForPower(Sides::Two, power, ratio, {mean1, sd1, mean2, sd2}, results, alpha);
}

extern "C" void PowerReverseIndependentDirectional(double power, double ratio, double mean1, double sd1, double mean2,
                                                   double sd2, DoubleVector& results, double alpha) {
  AppendSizesForPower(Sides::One, power, ratio, {mean1, sd1, mean2, sd2}, results, alpha);
}

extern "C" void PowerReverseIndependentNondirectionalES(double power, double ratio, double effectSize,
                                                        DoubleVector& results, double alpha) {
  AppendSizesForPowerES(Sides::Two, power, ratio, effectSize, results, alpha);
}

extern "C" void PowerReverseIndependentDirectionalES(double power, double ratio, double effectSize,
                                                     DoubleVector& results, double alpha) {
  AppendSizesForPowerES(Sides::One, power, ratio, effectSize, results, alpha);
}

extern "C" double HalfCIIndependentMeans(double sampleSize1, double sd1, double sampleSize2, double sd2, double alpha) {
  const Difference difference = IndependentDifference(sampleSize1, sd1, sampleSize2, sd2);
  return IntervalQuantileT(alpha, difference.df) * difference.standardError;
}

// Solves w = t sqrt(sd1^2 / n + sd2^2 / (ratio n)), squared and multiplied by n.
extern "C" void PowerReversebyHalfCIIndependentMeans(double halfWidth, double ratio, double sd1, double sd2,
                                                     DoubleVector& results, double alpha) {
  const double size1 = sd1 == sd2 ? SizeForHalfWidthPooled(halfWidth, ratio, sd1, alpha)
                                  : SizeForHalfWidthWelch(halfWidth, ratio, sd1, sd2, alpha);
  AppendGroupSizes(size1, ratio, results);
}
