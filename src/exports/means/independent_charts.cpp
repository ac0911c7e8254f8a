#include <cmath>

#include "exports/means/independent.h"
#include "exports/means/sides.h"
#include "exports/records.h"
#include "frame/checks.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"

using namespace kelpower;
using namespace kelpower::means;
using namespace kelpower::exports;
using KelCommon::KelMV;

namespace {

struct Range {
  double start;
  double end;
};

/// An automatic range, none where its ends are not representable.
std::optional<Range> Automatic(double start, double end) {
  if (!std::isfinite(start) || !std::isfinite(end)) return std::nullopt;
  return Range{start, end};
}

/// An end of 0 asks for the automatic range of ratios, which is symmetric around 1 on a logarithmic scale.
std::optional<Range> RatioRange(double totalSize, double minRatio, double maxRatio) {
  constexpr double shareOfLargest = 0.8;  // of the ratio that leaves one observation in a group, about
  if (minRatio != 0 && maxRatio != 0) return Range{minRatio, maxRatio};
  const double largest = (totalSize - 2) * shareOfLargest;
  return Automatic(1 / largest, largest);
}

/// Two ends of 0, or ends that do not ascend, ask for the automatic range around 0.
std::optional<Range> MeanDifferenceRange(double mean1, double mean2, double minMeanDifference,
                                         double maxMeanDifference) {
  constexpr double multipleOfDifference = 5;
  constexpr double withoutDifference = 100;
  const bool bothZero = minMeanDifference == 0 && maxMeanDifference == 0;
  if (!bothZero && !(minMeanDifference >= maxMeanDifference)) return Range{minMeanDifference, maxMeanDifference};
  const double meanDifference = mean1 - mean2;
  const double end = meanDifference != 0 ? multipleOfDifference * std::fabs(meanDifference) : withoutDifference;
  return Automatic(-end, end);
}

/// Positions a fraction of the range apart. Unlike with `FractionAxis`, the fraction alone decides their number, so an
/// empty range has as many positions as any other.
std::optional<Axis> EvenAxis(const Range& range, double stepFraction) {
  if (!(stepFraction > 0)) return std::nullopt;
  return CountedAxis(std::ceil(1 / stepFraction) + 1, range.start, stepFraction * (range.end - range.start), range.end);
}

/// The same with positions index * range * fraction, multiplied in that order: the last digits of charts differ in it.
std::optional<Axis> EvenAxisByIndex(const Range& range, double stepFraction) {
  std::optional<Axis> axis = EvenAxis(range, stepFraction);
  if (!axis) return axis;
  axis->step = range.end - range.start;
  axis->fraction = stepFraction;
  return axis;
}

/// Twice as coarse. A fraction so large that twice its range overflows leaves the two ends alone.
std::optional<Axis> CoarseAxis(const Range& range, double stepFraction) {
  if (!(stepFraction > 0)) return std::nullopt;
  const double count = std::ceil(0.5 / stepFraction) + 1;
  const double step = count > 2 ? (range.end - range.start) * (2 * stepFraction) : 0;
  return CountedAxis(count, range.start, step, range.end);
}

bool RejectsRatioCurve(double totalSize, const Range& ratios) {
  if (ratios.start > ratios.end) return true;
  if (1 / (totalSize - 1) >= ratios.start) return true;
  if (ratios.end >= totalSize - 1) return true;
  return totalSize <= 1;
}

exports::TwoSampleTest StandardizedTestByTotal(Sides sides, double totalSize, double ratio, double alpha) {
  const double sampleSize1 = totalSize / (ratio + 1);
  return StandardizedTest(sides, sampleSize1, sampleSize1 * ratio, alpha);
}

bool IsOutsideUnit(double power) { return power > 1 || power < 0; }

using TestAtRatio = FunctionView<exports::TwoSampleTest(double ratio)>;

/// The curve over ratios at one effect. A value outside [0, 1] repeats its left neighbour, the first value stays.
XYPlot CurveOverRatios(const std::optional<Axis>& ratios, double effect, TestAtRatio testAt) {
  std::optional<double> left;
  return Curve(ratios, Precision::Double, [&](double ratio) {
    const double power = Stored(PowerOrMissing(testAt(ratio), effect), Precision::Single);
    if (!left || !IsOutsideUnit(power)) left = power;
    return *left;
  });
}

/// The surface over ratios (x) and effects (y). A value outside [0, 1] beyond the first column is replaced by the
/// element of the array of y whose index its left neighbour has in z: in the first row the effect before it, and the
/// missing value in the others, where the index lies beyond the array. Replacements are intended to be stored
/// unrounded.
XYZPlot SurfaceOverRatios(const std::optional<Axis>& ratios, const std::optional<Axis>& effects, TestAtRatio testAt) {
  bool isFirstRow = true;
  return SurfaceByRows(ratios, effects, Precision::Double, [&](double ratio, const SurfaceLine& row) {
    const exports::TwoSampleTest test = testAt(ratio);
    std::optional<double> replacement;
    row.Fill([&](double effect) {
      const double power = Stored(PowerOrMissing(test, effect), Precision::Single);
      const double value = replacement && IsOutsideUnit(power) ? *replacement : power;
      replacement = isFirstRow ? effect : KelMV::Missing();
      return value;
    });
    isFirstRow = false;
  });
}

}  // namespace

extern "C" XYPlot PlotRatioIndependent(double totalSize, double mean1, double sd1, double mean2, double sd2,
                                       double minRatio, double maxRatio, int directional, double alpha,
                                       double stepFraction) {
  const std::optional<Range> ratios = RatioRange(totalSize, minRatio, maxRatio);
  if (!ratios) return EmptyCurve();
  if (RejectsRatioCurve(totalSize, *ratios)) return EmptyCurve();
  if (RejectsStandardDeviation(sd1)) return EmptyCurve();
  if (RejectsStandardDeviation(sd2)) return EmptyCurve();
  if (RejectsAlpha(alpha)) return EmptyCurve();

  const Sides sides = SidesOf(directional);
  const std::optional<Axis> axis = EvenAxis(*ratios, stepFraction);
  if (sd1 == sd2) {
    return CurveOverRatios(axis, (mean1 - mean2) / sd1,
                           [=](double ratio) { return StandardizedTestByTotal(sides, totalSize, ratio, alpha); });
  }
  return CurveOverRatios(axis, mean1 - mean2,
                         [=](double ratio) { return WelchTestByTotal(sides, totalSize, ratio, sd1, sd2, alpha); });
}

extern "C" XYPlot PlotRatioIndependentFES(double totalSize, double effectSize, double minRatio, double maxRatio,
                                          int directional, double alpha, double stepFraction) {
  const std::optional<Range> ratios = RatioRange(totalSize, minRatio, maxRatio);
  if (!ratios) return EmptyCurve();
  if (RejectsRatioCurve(totalSize, *ratios)) return EmptyCurve();
  if (RejectsAlpha(alpha)) return EmptyCurve();

  const Sides sides = SidesOf(directional);
  return CurveOverRatios(EvenAxis(*ratios, stepFraction), effectSize,
                         [=](double ratio) { return StandardizedTestByTotal(sides, totalSize, ratio, alpha); });
}

extern "C" XYPlot PlotESIndepended(double sampleSize1, double sampleSize2, double minEffectSize, double maxEffectSize,
                                   int directional, double alpha, double stepFraction) {
  const Sides sides = SidesOf(directional);
  const std::optional<double> start = EffectSizeStart(sides, minEffectSize);
  if (!start) return EmptyCurve();
  if (*start >= maxEffectSize) return EmptyCurve();
  if (sampleSize1 <= 1) return EmptyCurve();
  if (sampleSize2 <= 1) return EmptyCurve();
  if (RejectsAlpha(alpha)) return EmptyCurve();

  const exports::TwoSampleTest test = StandardizedTest(sides, sampleSize1, sampleSize2, alpha);
  return Curve(FractionAxis(*start, maxEffectSize, stepFraction, AxisEnd::Exact), Precision::Single,
               [&](double effectSize) { return PowerOrMissing(test, effectSize); });
}

extern "C" XYPlot PlotMeanDiffIndepended(double sampleSize1, double mean1, double sd1, double sampleSize2, double mean2,
                                         double sd2, double minMeanDifference, double maxMeanDifference,
                                         int directional, double alpha, double step) {
  const std::optional<Range> range = MeanDifferenceRange(mean1, mean2, minMeanDifference, maxMeanDifference);
  if (!range) return EmptyCurve();
  if (sampleSize1 <= 1) return EmptyCurve();
  if (sampleSize2 <= 1) return EmptyCurve();
  if (RejectsStandardDeviation(sd1)) return EmptyCurve();
  if (RejectsStandardDeviation(sd2)) return EmptyCurve();
  if (RejectsAlpha(alpha)) return EmptyCurve();

  const double ratio = sampleSize2 / sampleSize1;
  const exports::TwoSampleTest test =
      WelchTestByTotal(SidesOf(directional), sampleSize1 + sampleSize2, ratio, sd1, sd2, alpha);
  return Curve(StepAxis(range->start, range->end, step), Precision::Single,
               [&](double meanDifference) { return PowerOrMissing(test, meanDifference); });
}

extern "C" XYZPlot PlotRatioaESIndependent(double totalSize, double minRatio, double maxRatio, double minEffectSize,
                                           double maxEffectSize, int directional, double alpha, double stepFraction) {
  const Sides sides = SidesOf(directional);
  const std::optional<Range> ratios = RatioRange(totalSize, minRatio, maxRatio);
  const std::optional<double> start = EffectSizeStart(sides, minEffectSize);
  if (!ratios || !start) return EmptySurface();
  if (ratios->start >= ratios->end) return EmptySurface();
  if (*start >= maxEffectSize) return EmptySurface();
  if (totalSize <= 1) return EmptySurface();
  if (RejectsAlpha(alpha)) return EmptySurface();

  return SurfaceOverRatios(EvenAxisByIndex(*ratios, stepFraction),
                           EvenAxisByIndex({*start, maxEffectSize}, stepFraction),
                           [=](double ratio) { return StandardizedTestByTotal(sides, totalSize, ratio, alpha); });
}

extern "C" XYZPlot PlotRatioaMeanDiffIndependent(double totalSize, double mean1, double sd1, double mean2, double sd2,
                                                 double minRatio, double maxRatio, double minMeanDifference,
                                                 double maxMeanDifference, int directional, double alpha,
                                                 double stepFraction) {
  const std::optional<Range> ratios = RatioRange(totalSize, minRatio, maxRatio);
  const std::optional<Range> range = MeanDifferenceRange(mean1, mean2, minMeanDifference, maxMeanDifference);
  if (!ratios || !range) return EmptySurface();
  if (ratios->start > ratios->end) return EmptySurface();
  if (range->start > range->end) return EmptySurface();
  if (totalSize <= 1) return EmptySurface();
  if (RejectsStandardDeviation(sd1)) return EmptySurface();
  if (RejectsStandardDeviation(sd2)) return EmptySurface();
  if (RejectsAlpha(alpha)) return EmptySurface();

  const Sides sides = SidesOf(directional);
  return SurfaceOverRatios(EvenAxis(*ratios, stepFraction), CoarseAxis(*range, stepFraction),  // deliberately
                           [=](double ratio) { return WelchTestByTotal(sides, totalSize, ratio, sd1, sd2, alpha); });
}
