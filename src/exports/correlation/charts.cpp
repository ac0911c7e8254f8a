#include "exports/correlation/charts.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "exports/records.h"
#include "frame/checks.h"
#include "frame/counts.h"

namespace kelpower::exports {

namespace {

bool Rejects(const ChartedTest& charted, double alternative, double null) {
  if (charted.sampleSize <= charted.test.PartialledOut() + 3) return true;
  if (charted.test.PartialledOut() < 0) return true;
  if (RejectsCorrelation(alternative)) return true;
  if (RejectsCorrelation(null)) return true;
  return RejectsOpenUnit(charted.test.Alpha());
}

bool Rejects(const SizeRange& range, double partialledOut) {
  if (range.from > range.to) return true;
  if (range.from == range.to && range.from != 0) return true;
  if (range.to > partialledOut + 5000) return true;
  if (range.from == 0) return range.zeroStart == ZeroStart::Rejected;
  return range.from < partialledOut + 4;
}

bool RejectsStep(double step) { return step > 0.5; }

/// The ends of an axis of sizes; no number where the range is rejected.
struct Sizes {
  double from = std::numeric_limits<double>::quiet_NaN();
  double to = from;

  /// Makes no axis of ends that are not representable as ints.
  std::optional<Axis> On(std::optional<Axis> (*axis)(double, double)) const {
    return from <= largestCount && to <= largestCount ? axis(from, to) : std::nullopt;
  }
};

Sizes SizesOf(const ChartedTest& charted, double alternative, double null, const SizeRange& range) {
  const auto& [test, sampleSize] = charted;
  if (Rejects(range, test.PartialledOut())) return {};
  if (range.from == 0 && range.zeroStart == ZeroStart::Widest) {
    const double partialledOut = std::trunc(test.PartialledOut());
    return {partialledOut + 4, partialledOut + 5000};
  }
  if (range.from == 0 && range.zeroStart == ZeroStart::AroundDesign) {
    const double power = test.Power(sampleSize, alternative, null);
    return {std::max(4.0, std::floor((1 - power) * sampleSize)), std::ceil((2 - power) * sampleSize)};
  }
  return {static_cast<double>(range.from), static_cast<double>(range.to)};
}

/// An axis of `steps` steps and its start.
std::optional<Axis> StepsFrom(double start, double steps, double step) {
  if (!(step > 0)) return std::nullopt;
  return CountedAxis(steps + 1, start, step);
}

std::optional<Axis> CorrelationAxis(double step) { return StepsFrom(-1, -std::trunc(-2 / step), step); }

// Differences of the alternative from the null, from the least that there is.
std::optional<Axis> DifferenceAxis(double null, double step) {
  return StepsFrom(-1 - null, std::trunc(((1 - null) - (-1 - null)) / step), step);
}

/// The lower half of the differences, which is all that the surface shows; that is intended.
std::optional<Axis> LowerDifferenceAxis(double null, double step) {
  return StepsFrom(-1 - null, std::ceil(2 / (2 * step)), step);
}

using PowerAt = FunctionView<double(double sampleSize, double position)>;

XYZPlot SizeSurface(const std::optional<Axis>& sizes, const std::optional<Axis>& positions, PowerAt powerAt) {
  return SurfaceByRows(sizes, positions, Precision::Single, [&](double sampleSize, const SurfaceLine& row) {
    row.Fill([&](double position) { return powerAt(sampleSize, position); });
  });
}

}  // namespace

XYPlot SizeCurve(const ChartedTest& charted, double alternative, double null, const SizeRange& range) {
  if (Rejects(charted, alternative, null)) return EmptyCurve();
  return Curve(SizesOf(charted, alternative, null, range).On(SizeAxis), Precision::Single,
               [&](double sampleSize) { return charted.test.Power(sampleSize, alternative, null); });
}

XYPlot NullCurve(const ChartedTest& charted, double alternative, double step) {
  if (Rejects(charted, alternative, 0)) return EmptyCurve();
  if (RejectsStep(step)) return EmptyCurve();
  return Curve(CorrelationAxis(step), Precision::Single,
               [&](double null) { return charted.test.Power(charted.sampleSize, alternative, null); });
}

XYPlot AlternativeCurve(const ChartedTest& charted, double null, double step) {
  if (Rejects(charted, 0, null)) return EmptyCurve();
  if (RejectsStep(step)) return EmptyCurve();
  return Curve(CorrelationAxis(step), Precision::Single,
               [&](double alternative) { return charted.test.Power(charted.sampleSize, alternative, null); });
}

XYPlot DifferenceCurve(const ChartedTest& charted, double null, double step) {
  if (Rejects(charted, 0, null)) return EmptyCurve();
  if (RejectsStep(step)) return EmptyCurve();
  return Curve(DifferenceAxis(null, step), Precision::Single,
               [&](double difference) { return charted.test.Power(charted.sampleSize, difference + null, null); });
}

XYZPlot SizeDifferenceSurface(const ChartedTest& charted, double alternative, double null, const SizeRange& range,
                              double step) {
  if (Rejects(charted, alternative, null)) return EmptySurface();
  if (RejectsStep(step)) return EmptySurface();
  return SizeSurface(
      SizesOf(charted, alternative, null, range).On(SurfaceSizeAxis), LowerDifferenceAxis(null, step),
      [&](double sampleSize, double difference) { return charted.test.Power(sampleSize, difference + null, null); });
}

XYZPlot SizeNullSurface(const ChartedTest& charted, double alternative, double null, const SizeRange& range,
                        double step) {
  if (Rejects(charted, alternative, null)) return EmptySurface();
  if (RejectsStep(step)) return EmptySurface();
  return SizeSurface(
      SizesOf(charted, alternative, null, range).On(SizeAxis), CorrelationAxis(step),
      [&](double sampleSize, double position) { return charted.test.Power(sampleSize, alternative, position); });
}

XYZPlot SizeAlternativeSurface(const ChartedTest& charted, double alternative, double null, const SizeRange& range,
                               double step) {
  if (Rejects(charted, alternative, null)) return EmptySurface();
  if (RejectsStep(step)) return EmptySurface();
  return SizeSurface(
      SizesOf(charted, alternative, null, range).On(SizeAxis), CorrelationAxis(step),
      [&](double sampleSize, double position) { return charted.test.Power(sampleSize, position, null); });
}

XYZPlot NullAlternativeSurface(const ChartedTest& charted, double step) {
  if (Rejects(charted, 0, 0)) return EmptySurface();
  if (RejectsStep(step)) return EmptySurface();
  const std::optional<Axis> axis = CorrelationAxis(step);
  return SurfaceByRows(axis, axis, Precision::Single, [&](double null, const SurfaceLine& row) {
    row.Fill([&](double alternative) { return charted.test.Power(charted.sampleSize, alternative, null); });
  });
}

}  // namespace kelpower::exports
