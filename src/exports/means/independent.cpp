#include "exports/means/independent.h"

#include <cmath>

#include "exports/sentinels.h"
#include "frame/checks.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"

using namespace kelpower;
using namespace kelpower::means;
using namespace kelpower::exports;
using KelCommon::KelMV;

namespace kelpower::exports {

double PowerOrMissing(const TwoSampleTest& test, double effect) {
  return test ? test->Power(effect) : KelMV::Missing();
}

TwoSampleTest StandardizedTest(Sides sides, double sampleSize1, double sampleSize2, double alpha) {
  if (sampleSize1 <= 1) return std::nullopt;
  if (sides == Sides::One) {
    if (sampleSize2 <= 1) return std::nullopt;
  } else {
    const double ratio = sampleSize2 / sampleSize1;
    if (ratio <= 0) return std::nullopt;
    if (ratio * sampleSize1 <= 1) return std::nullopt;
  }
  if (RejectsAlpha(alpha)) return std::nullopt;
  const DifferenceDistribution difference = PooledDifference(sampleSize1, sampleSize2, 1);
  return TTestOfAMean(sides, alpha, difference.df, difference.standardError);
}

TwoSampleTest WelchTestByTotal(Sides sides, double totalSize, double ratio, double sd1, double sd2, double alpha) {
  if (ratio <= 0) return std::nullopt;
  const double sampleSize1 = totalSize / (ratio + 1);
  return means::TwoSampleTest({sd1, sd2, /*isPooled=*/false}, sides, alpha, sampleSize1, sampleSize1 * ratio);
}

namespace {

/// Equal standard deviations select the pooled form.
GroupSpreads SpreadsOf(double sd1, double sd2) { return {sd1, sd2, sd1 == sd2}; }

/// Appends both sizes for the unrounded first one. The ratio applies to the unrounded size, and only the second size is
/// raised to 2. Both are appended at once, so that a failed allocation leaves no half of them.
void AppendGroupSizes(Answer found, double ratio, DoubleVector& results) {
  if (!found) {
    results.insert(results.end(), 2, KelMV::Missing());
    return;
  }
  const double size1 = *found;
  const double size2 = std::ceil(size1 * ratio);
  results.insert(results.end(), {std::ceil(size1), 2 > size2 ? 2 : size2});
}

void AppendSizesForPower(const TwoSampleDesign& design, double power, double ratio, DoubleVector& results) {
  if (!results.empty()) return;
  AppendGroupSizes(FirstSizeForPower(design, ratio, power), ratio, results);
}

// Unlike the raw functions, these append behind what the vector holds; that is intended.
void AppendSizesForPowerES(Sides sides, double power, double ratio, double effectSize, DoubleVector& results,
                           double alpha) {
  const auto powerAt = [=](double n) {
    return Answer(PowerOrMissing(StandardizedTest(sides, n, ratio * n, alpha), effectSize));
  };
  AppendGroupSizes(SizeForPower(powerAt, power), ratio, results);
}

}  // namespace

}  // namespace kelpower::exports

extern "C" double EffectSizeIndependent(double mean1, double mean2, double sd) {
  if (sd == 0) return KelMV::Missing();
  return (mean1 - mean2) / sd;
}

extern "C" double PowerIndependentNondirectional(double sampleSize1, double mean1, double sd1, double sampleSize2,
                                                 double mean2, double sd2, double alpha) {
  return OrMissing(Power({mean1 - mean2, SpreadsOf(sd1, sd2), Sides::Two, alpha}, sampleSize1, sampleSize2));
}

extern "C" double PowerIndependentNondirectionalES(double sampleSize1, double sampleSize2, double effectSize,
                                                   double alpha) {
  return PowerOrMissing(StandardizedTest(Sides::Two, sampleSize1, sampleSize2, alpha), effectSize);
}

extern "C" double PowerIndependentDirectional(double sampleSize1, double mean1, double sd1, double sampleSize2,
                                              double mean2, double sd2, double alpha) {
  return OrMissing(Power({mean1 - mean2, SpreadsOf(sd1, sd2), Sides::One, alpha}, sampleSize1, sampleSize2));
}

extern "C" double PowerIndependentDirectionalES(double sampleSize1, double sampleSize2, double effectSize,
                                                double alpha) {
  return PowerOrMissing(StandardizedTest(Sides::One, sampleSize1, sampleSize2, alpha), effectSize);
}

extern "C" void PowerReverseIndependentNondirectional(double power, double ratio, double mean1, double sd1,
                                                      double mean2, double sd2, DoubleVector& results, double alpha) {
  AppendSizesForPower({mean1 - mean2, SpreadsOf(sd1, sd2), Sides::Two, alpha}, power, ratio, results);
}

extern "C" void PowerReverseIndependentDirectional(double power, double ratio, double mean1, double sd1, double mean2,
                                                   double sd2, DoubleVector& results, double alpha) {
  AppendSizesForPower({mean1 - mean2, SpreadsOf(sd1, sd2), Sides::One, alpha}, power, ratio, results);
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
  return HalfWidth(TwoSampleInterval{SpreadsOf(sd1, sd2), alpha}, sampleSize1, sampleSize2);
}

extern "C" void PowerReversebyHalfCIIndependentMeans(double halfWidth, double ratio, double sd1, double sd2,
                                                     DoubleVector& results, double alpha) {
  AppendGroupSizes(FirstSizeForHalfWidth({SpreadsOf(sd1, sd2), alpha}, ratio, halfWidth), ratio, results);
}
