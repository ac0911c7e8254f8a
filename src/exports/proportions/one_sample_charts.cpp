#include <algorithm>
#include <cmath>

#include "exports/proportions/designs.h"
#include "exports/records.h"
#include "exports/sentinels.h"
#include "frame/checks.h"
#include "frame/counts.h"
#include "frame/function_view.h"
#include "kelpower.h"
#include "proportions/one_sample_tests.h"

using namespace kelpower;
using namespace kelpower::proportions;
using namespace kelpower::exports;

namespace {

constexpr int largestChartSize = 5000;
constexpr double largestStep = 0.5;  // a wider one leaves no proportion between 0 and 1

double PowerAt(OneSampleTest& test, double size, double altProportion, double nullProportion) {
  return OrSentinel(test.Power(size, {altProportion, nullProportion}));
}

bool RejectsDesign(double sampleSize, double alpha) { return sampleSize < 1 || RejectsAlpha(alpha); }

/// The checks of a curve over a grid of proportions, with the other proportion fixed.
bool RejectsGridCurve(double sampleSize, double fixedProportion, double alpha, double step) {
  if (RejectsDesign(sampleSize, alpha)) return true;
  if (RejectsProportion(fixedProportion)) return true;
  return step > largestStep;
}

/// A range of one size is rejected, unless that size is 0.
bool RejectsChartSizes(int from, int to) {
  if (from > to) return true;
  if (from == to && from != 0) return true;
  return from < 0 || to > largestChartSize;
}

/// Differences altProportion - nullProportion at which altProportion runs through the proportion grid.
std::optional<Axis> DifferenceGrid(double nullProportion, double step) {
  const double count = std::trunc(((1 - nullProportion) - (-nullProportion)) / step) - 1;
  return InnerAxis(count, -nullProportion, step);
}

/// The design of a surface over the sample size.
struct SizeSurface {
  double sampleSize;
  double altProportion;
  double nullProportion;
  double alpha;
  int minSampleSize;
  int maxSampleSize;
  double step;

  bool IsInvalid() const {
    if (RejectsDesign(sampleSize, alpha)) return true;
    if (RejectsProportion(altProportion)) return true;
    if (RejectsProportion(nullProportion)) return true;
    if (RejectsChartSizes(minSampleSize, maxSampleSize)) return true;
    return step > largestStep;
  }

  /// An end of 0 asks for a range around the design: from (1 - P) N to (2 - P) N, P its power at its size N.
  std::optional<Axis> Sizes(OneSampleTest& test) const {
    if (minSampleSize != 0 && maxSampleSize != 0) return SizeAxis(minSampleSize, maxSampleSize);
    const double power = PowerAt(test, sampleSize, altProportion, nullProportion);
    const double from = std::max(1.0, std::floor((1 - power) * sampleSize));
    const double to = std::ceil((2 - power) * sampleSize);
    if (!(to <= largestCount)) return std::nullopt;
    return SizeAxis(from, to);
  }

  /// The surface over the sizes and `positions`; empty where the design is invalid.
  XYZPlot Over(const std::optional<Axis>& positions, OneSampleTest& test,
               FunctionView<double(double size, double position)> powerAt) const {
    if (IsInvalid()) return EmptySurface();
    return SurfaceByRows(Sizes(test), positions, Precision::Single, [&](double size, const SurfaceLine& row) {
      row.Fill([&](double position) { return powerAt(size, position); });
    });
  }
};

}  // namespace

extern "C" XYPlot PlotNOneSampBinom(double sampleSize, double altProportion, double nullProportion, int method,
                                    int oneSided, double alpha, int minSampleSize, int maxSampleSize,
                                    std::uint8_t continuityCorrection) {
  if (RejectsDesign(sampleSize, alpha)) return EmptyCurve();
  if (RejectsProportion(altProportion)) return EmptyCurve();
  if (RejectsProportion(nullProportion)) return EmptyCurve();
  if (RejectsChartSizes(minSampleSize, maxSampleSize)) return EmptyCurve();

  OneSampleTest test(OneSampleDesignOf(method, oneSided, alpha, continuityCorrection));
  return Curve(SizeAxis(minSampleSize, maxSampleSize), Precision::Single,
               [&](double size) { return PowerAt(test, size, altProportion, nullProportion); });
}

extern "C" XYPlot PlotNullOneSampBinom(double sampleSize, double altProportion, int method, int oneSided, double alpha,
                                       std::uint8_t continuityCorrection, double step) {
  if (RejectsGridCurve(sampleSize, altProportion, alpha, step)) return EmptyCurve();

  OneSampleTest test(OneSampleDesignOf(method, oneSided, alpha, continuityCorrection));
  return Curve(ProportionGrid(step), Precision::Single,
               [&](double nullProportion) { return PowerAt(test, sampleSize, altProportion, nullProportion); });
}

extern "C" XYPlot PlotAlterOneSampBinom(double sampleSize, double nullProportion, int method, int oneSided,
                                        double alpha, std::uint8_t continuityCorrection, double step) {
  if (RejectsGridCurve(sampleSize, nullProportion, alpha, step)) return EmptyCurve();

  OneSampleTest test(OneSampleDesignOf(method, oneSided, alpha, continuityCorrection));
  return Curve(ProportionGrid(step), Precision::Single,
               [&](double altProportion) { return PowerAt(test, sampleSize, altProportion, nullProportion); });
}

extern "C" XYPlot PlotRiskDiffOneSampBionm(double sampleSize, double nullProportion, int method, int oneSided,
                                           double alpha, std::uint8_t continuityCorrection, double step) {
  if (RejectsGridCurve(sampleSize, nullProportion, alpha, step)) return EmptyCurve();

  OneSampleTest test(OneSampleDesignOf(method, oneSided, alpha, continuityCorrection));
  return Curve(DifferenceGrid(nullProportion, step), Precision::Single, [&](double difference) {
    return PowerAt(test, sampleSize, difference + nullProportion, nullProportion);
  });
}

extern "C" XYZPlot PlotNRiskDiffOneSampBinom(double sampleSize, double altProportion, double nullProportion, int method,
                                             int oneSided, double alpha, int minSampleSize, int maxSampleSize,
                                             std::uint8_t continuityCorrection, double step) {
  const SizeSurface design{sampleSize, altProportion, nullProportion, alpha, minSampleSize, maxSampleSize, step};
  OneSampleTest test(OneSampleDesignOf(method, oneSided, alpha, continuityCorrection));
  return design.Over(DifferenceGrid(nullProportion, step), test, [&](double size, double difference) {
    return PowerAt(test, size, difference + nullProportion, nullProportion);
  });
}

extern "C" XYZPlot PlotNNullOneSampBinom(double sampleSize, double altProportion, double nullProportion, int method,
                                         int oneSided, double alpha, int minSampleSize, int maxSampleSize,
                                         std::uint8_t continuityCorrection, double step) {
  const SizeSurface design{sampleSize, altProportion, nullProportion, alpha, minSampleSize, maxSampleSize, step};
  OneSampleTest test(OneSampleDesignOf(method, oneSided, alpha, continuityCorrection));
  return design.Over(ProportionGrid(step), test,
                     [&](double size, double null) { return PowerAt(test, size, altProportion, null); });
}

extern "C" XYZPlot PlotNAlterOneSampBinom(double sampleSize, double altProportion, double nullProportion, int method,
                                          int oneSided, double alpha, int minSampleSize, int maxSampleSize,
                                          std::uint8_t continuityCorrection, double step) {
  const SizeSurface design{sampleSize, altProportion, nullProportion, alpha, minSampleSize, maxSampleSize, step};
  OneSampleTest test(OneSampleDesignOf(method, oneSided, alpha, continuityCorrection));
  return design.Over(ProportionGrid(step), test,
                     [&](double size, double alternative) { return PowerAt(test, size, alternative, nullProportion); });
}

extern "C" XYZPlot PlotNullAlterOneSampBinom(double sampleSize, int method, int oneSided, double alpha,
                                             std::uint8_t continuityCorrection, double step) {
  if (RejectsDesign(sampleSize, alpha)) return EmptySurface();
  if (step > largestStep) return EmptySurface();

  OneSampleTest test(OneSampleDesignOf(method, oneSided, alpha, continuityCorrection));
  return SurfaceByRows(
      ProportionGrid(step), ProportionGrid(step), Precision::Single,
      [&](double nullProportion, const SurfaceLine& row) {
        row.Fill([&](double alternative) { return PowerAt(test, sampleSize, alternative, nullProportion); });
      });
}
