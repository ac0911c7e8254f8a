#include <algorithm>
#include <cmath>
#include <cstdint>

#include "exports/proportions/designs.h"
#include "exports/records.h"
#include "exports/sentinels.h"
#include "frame/checks.h"
#include "kelpower.h"
#include "proportions/independent_power.h"

using namespace kelpower;
using namespace kelpower::proportions;
using namespace kelpower::exports;

namespace {

constexpr double largestStep = 0.5;
constexpr double largestRatio = 10;

/// The large-sample arcsine test, whose charts start where it becomes valid.
bool IsArcsine(int exact, int method) { return exact == 0 && method == 3; }

/// A range of group sizes, in doubles, because an automatic one need not be representable as int.
struct SizeRange {
  double from;
  double to;
};

/// The automatic range. 2 and 2500 are the bounds that a caller's form starts with, and are taken for 0.
SizeRange ArcsineRange(SizeRange range, double sampleSize, double validFrom) {
  if (range.from == 0 || range.from == 2) range.from = std::ceil(validFrom);
  if (range.to == 0 || range.to == 2500) range.to = std::trunc(sampleSize) + range.from;
  return range;
}

/// All sizes of a range, thinned to every fifth from 251 of them on and to every tenth from 1002 on; the last is the
/// upper end.
std::optional<Axis> ThinnedAxis(const SizeRange& range) {
  const double span = range.to - range.from;
  if (span + 1 < 251) return CountedAxis(span + 1, range.from, 1, range.to);
  if (span + 1 < 1002) return CountedAxis(std::ceil(0.2 * span) + 1, range.from, 5, range.to);
  return CountedAxis(std::ceil(0.1 * span) + 1, range.from, 10, range.to);
}

/// start, start + step, ... up to `end`.
std::optional<Axis> RatioAxis(double start, double end, double step, double stepFraction) {
  if (!(stepFraction > 0)) return std::nullopt;
  if (start == end) return Axis{1, start, 0};
  return CountedAxis(std::floor((end - start) / step) + 1, start, step);
}

/// Everything but the proportions.
bool RejectsSizesOrLevel(double sampleSize1, double sampleSize2, double alpha) {
  return RejectsGroupSize(sampleSize1) || RejectsGroupSize(sampleSize2) || RejectsAlpha(alpha);
}

/// A range of ratios whose lower end has passed its own check.
bool RejectsRatioRange(double minRatio, double maxRatio, double step) {
  return minRatio > maxRatio || maxRatio > largestRatio || step > largestStep;
}

}  // namespace

extern "C" XYZPlot PlotNIndSampBinom(double sampleSize1, double sampleSize2, double proportion1, double proportion2,
                                     int exact, int method, int oneSided, double alpha,
                                     std::uint8_t continuityCorrection, std::uint8_t pooledVariance, int minSampleSize1,
                                     int maxSampleSize1, int minSampleSize2, int maxSampleSize2) {
  if (RejectsSizesOrLevel(sampleSize1, sampleSize2, alpha)) return EmptySurface();
  if (RejectsInnerProportion(proportion1)) return EmptySurface();
  if (RejectsInnerProportion(proportion2)) return EmptySurface();
  if (minSampleSize1 > maxSampleSize1) return EmptySurface();
  if (minSampleSize2 > maxSampleSize2) return EmptySurface();

  SizeRange range1{double(minSampleSize1), double(maxSampleSize1)};
  SizeRange range2{double(minSampleSize2), double(maxSampleSize2)};
  if (IsArcsine(exact, method)) {
    const bool isFirstGreater = proportion1 >= proportion2;
    range1 = ArcsineRange(range1, sampleSize1, 0.5 / (isFirstGreater ? proportion1 : 1 - proportion1));
    range2 = ArcsineRange(range2, sampleSize2, 0.5 / (isFirstGreater ? 1 - proportion2 : proportion2));
  } else {
    if (minSampleSize1 < 0 || minSampleSize1 == 1) return EmptySurface();
    if (minSampleSize2 < 0 || minSampleSize2 == 1) return EmptySurface();
  }

  const auto design = IndependentDesignOf(exact, method, oneSided, alpha, continuityCorrection, pooledVariance);
  return SurfaceByRows(ThinnedAxis(range1), ThinnedAxis(range2), Precision::Single,
                       [&](double size1, const SurfaceLine& row) {
                         row.Fill([&](double size2) {
                           return OrSentinel(IndependentPower(design, size1, size2).At(proportion1, proportion2));
                         });
                       });
}

// The two proportions are only checked: the surface always spans both whole ranges.
extern "C" XYZPlot PlotPropIndSampBinom(double sampleSize1, double sampleSize2, double proportion1, double proportion2,
                                        int exact, int method, int oneSided, double alpha,
                                        std::uint8_t continuityCorrection, std::uint8_t pooledVariance, double step) {
  if (RejectsSizesOrLevel(sampleSize1, sampleSize2, alpha)) return EmptySurface();
  if (RejectsInnerProportion(proportion1)) return EmptySurface();
  if (RejectsInnerProportion(proportion2)) return EmptySurface();
  if (step > largestStep) return EmptySurface();

  const auto design = IndependentDesignOf(exact, method, oneSided, alpha, continuityCorrection, pooledVariance);
  IndependentPower power(design, sampleSize1, sampleSize2);
  const std::optional<Axis> axis = InnerAxis(std::trunc(1 / step) - 1, 0, step);
  return SurfaceByRows(axis, axis, Precision::Single, [&](double p1, const SurfaceLine& row) {
    row.Fill([&](double p2) { return OrSentinel(power.At(p1, p2)); });
  });
}

extern "C" XYPlot PlotNRatioIndSampBinom(double totalSampleSize, double proportion1, double proportion2, int exact,
                                         int method, int oneSided, double alpha, std::uint8_t continuityCorrection,
                                         std::uint8_t pooledVariance, double minRatio, double maxRatio, double step) {
  const double n = totalSampleSize;
  if (n < 2) return EmptyCurve();
  const double highest = n - 1;  // one subject in group 1
  const double lowest = 1 / highest;
  if (minRatio != 0 && minRatio < lowest) return EmptyCurve();
  if (maxRatio > highest) return EmptyCurve();
  if (minRatio > maxRatio) return EmptyCurve();
  if (RejectsInnerProportion(proportion1)) return EmptyCurve();
  if (RejectsInnerProportion(proportion2)) return EmptyCurve();
  if (RejectsAlpha(alpha)) return EmptyCurve();
  if (step > largestStep) return EmptyCurve();
  if (!(step > 0)) return EmptyCurve();

  const auto design = IndependentDesignOf(exact, method, oneSided, alpha, continuityCorrection, pooledVariance);
  const auto power = [&](double ratio) {
    return OrSentinel(IndependentPower(design, n / (ratio + 1), ratio * n / (ratio + 1)).At(proportion1, proportion2));
  };
  const double steps = std::ceil(1 / step);
  if (minRatio != 0 && maxRatio != 0) {
    const double low = std::max(lowest, minRatio);
    const double high = std::min(highest, maxRatio);
    return Curve(CountedAxis(steps + 1, low, step * (high - low), high), Precision::Single, power);
  }

  double low = lowest;
  double high = highest;
  if (IsArcsine(exact, method)) {
    const bool isFirstGreater = proportion1 > proportion2;
    const double second = 2 * n * (isFirstGreater ? 1 - proportion2 : proportion2);
    const double first = 2 * n * (isFirstGreater ? proportion1 : 1 - proportion1);
    low = std::max(1 / (second - 1), low);
    high = std::min(first - 1, high);
  }
  std::optional<Axis> axis = CountedAxis(steps - 1, low, step * (high - low));
  if (axis) axis->firstIndex = 1;  // both ends are left out
  return Curve(axis, Precision::Single, power);
}

extern "C" XYPlot PlotRiskDiffIndSampBinom(double sampleSize1, double sampleSize2, double proportion1, int exact,
                                           int method, int oneSided, double alpha, std::uint8_t continuityCorrection,
                                           std::uint8_t pooledVariance, double step) {
  if (RejectsSizesOrLevel(sampleSize1, sampleSize2, alpha)) return EmptyCurve();
  if (RejectsInnerProportion(proportion1)) return EmptyCurve();
  if (step > largestStep) return EmptyCurve();

  const auto design = IndependentDesignOf(exact, method, oneSided, alpha, continuityCorrection, pooledVariance);
  IndependentPower power(design, sampleSize1, sampleSize2);
  return Curve(InnerAxis(std::trunc(1 / step + 0.5) - 1, proportion1 - 1, step), Precision::Single,
               [&](double difference) { return OrSentinel(power.At(proportion1, proportion1 - difference)); });
}

// The step comes from the caller's range, even where the start then differs; the odds ratio's from the start as used.
// Both are intended.
extern "C" XYPlot PlotRiskRatioIndSampBinom(double sampleSize1, double sampleSize2, double proportion1, int exact,
                                            int method, int oneSided, double alpha, std::uint8_t continuityCorrection,
                                            std::uint8_t pooledVariance, double minRatio, double maxRatio,
                                            double step) {
  if (RejectsSizesOrLevel(sampleSize1, sampleSize2, alpha)) return EmptyCurve();
  if (RejectsInnerProportion(proportion1)) return EmptyCurve();
  if (minRatio != 0 && minRatio <= proportion1) return EmptyCurve();
  if (RejectsRatioRange(minRatio, maxRatio, step)) return EmptyCurve();

  const auto design = IndependentDesignOf(exact, method, oneSided, alpha, continuityCorrection, pooledVariance);
  IndependentPower power(design, sampleSize1, sampleSize2);
  const double spacing = step * (maxRatio - minRatio);
  const double start = minRatio == 0 ? proportion1 + spacing : minRatio;
  return Curve(RatioAxis(start, maxRatio, spacing, step), Precision::Single,
               [&](double ratio) { return OrSentinel(power.At(proportion1, proportion1 / ratio)); });
}

extern "C" XYPlot PlotOddsRatioIndSampBinom(double sampleSize1, double sampleSize2, double proportion1, int exact,
                                            int method, int oneSided, double alpha, std::uint8_t continuityCorrection,
                                            std::uint8_t pooledVariance, double minRatio, double maxRatio,
                                            double step) {
  if (RejectsSizesOrLevel(sampleSize1, sampleSize2, alpha)) return EmptyCurve();
  if (RejectsInnerProportion(proportion1)) return EmptyCurve();
  if (minRatio != 0 && minRatio < 0.1) return EmptyCurve();
  if (RejectsRatioRange(minRatio, maxRatio, step)) return EmptyCurve();

  const auto design = IndependentDesignOf(exact, method, oneSided, alpha, continuityCorrection, pooledVariance);
  IndependentPower power(design, sampleSize1, sampleSize2);
  const double start = minRatio == 0 ? 0.3333333333333333 : minRatio;
  return Curve(RatioAxis(start, maxRatio, step * (maxRatio - start), step), Precision::Single, [&](double ratio) {
    return OrSentinel(power.At(proportion1, proportion1 / ((1 - proportion1) * ratio + proportion1)));
  });
}
