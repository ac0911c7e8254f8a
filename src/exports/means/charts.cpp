#include "exports/means/paired.h"
#include "exports/means/sides.h"
#include "exports/records.h"
#include "frame/checks.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"
#include "means/one_sample.h"

// Charts of the tests of one sample and of paired samples. Over a standardised effect size both are the same charts.

using namespace kelpower;
using namespace kelpower::means;
using namespace kelpower::exports;

namespace {

bool RejectsChartSizes(int minSampleSize, int maxSampleSize) {
  return minSampleSize >= maxSampleSize || minSampleSize <= 1;
}

/// Every point is missing where the design has no effect size that the test accepts.
XYPlot CurveOverSizes(Sides sides, int minSampleSize, int maxSampleSize, std::optional<double> effectSize,
                      double alpha) {
  if (RejectsChartSizes(minSampleSize, maxSampleSize)) return EmptyCurve();
  if (RejectsAlpha(alpha)) return EmptyCurve();
  return Curve(SizeAxis(minSampleSize, maxSampleSize), Precision::Single, [=](double n) {
    return effectSize ? OneSampleTest(sides, n, alpha).Power(*effectSize) : KelCommon::KelMV::Missing();
  });
}

XYPlot CurveOverEffectSizes(Sides sides, double sampleSize, double minEffectSize, double maxEffectSize, double alpha,
                            double stepFraction) {
  const std::optional<double> start = EffectSizeStart(sides, minEffectSize);
  if (!start) return EmptyCurve();
  if (sampleSize <= 1) return EmptyCurve();
  if (*start > maxEffectSize) return EmptyCurve();
  if (RejectsAlpha(alpha)) return EmptyCurve();

  const TTestOfAMean test = OneSampleTest(sides, sampleSize, alpha);
  return Curve(FractionAxis(*start, maxEffectSize, stepFraction, AxisEnd::Exact), Precision::Single,
               [&](double effectSize) { return test.Power(effectSize); });
}

XYZPlot SurfaceOverEffectSizesAndSizes(Sides sides, int minSampleSize, int maxSampleSize, double minEffectSize,
                                       double maxEffectSize, double alpha, double stepFraction) {
  const std::optional<double> start = EffectSizeStart(sides, minEffectSize);
  if (!start) return EmptySurface();
  if (*start >= maxEffectSize) return EmptySurface();
  if (RejectsChartSizes(minSampleSize, maxSampleSize)) return EmptySurface();
  if (RejectsAlpha(alpha)) return EmptySurface();

  return SurfaceByColumns(FractionAxis(*start, maxEffectSize, stepFraction, AxisEnd::Exact),
                          SurfaceSizeAxis(minSampleSize, maxSampleSize), Precision::Single,
                          [&](double n, const SurfaceLine& column) {
                            const TTestOfAMean test = OneSampleTest(sides, n, alpha);
                            column.Fill([&](double effectSize) { return test.Power(effectSize); });
                          });
}

}  // namespace

extern "C" XYPlot PlotNOneSample(double /*ignored*/, double mean, double sd, int minSampleSize, int maxSampleSize,
                                 int directional, double testValue, double alpha) {
  if (RejectsStandardDeviation(sd)) return EmptyCurve();
  return CurveOverSizes(SidesOf(directional), minSampleSize, maxSampleSize, (mean - testValue) / sd, alpha);
}

extern "C" XYPlot PlotNOneSampleFES(double effectSize, int minSampleSize, int maxSampleSize, int directional,
                                    double alpha) {
  return CurveOverSizes(SidesOf(directional), minSampleSize, maxSampleSize, effectSize, alpha);
}

extern "C" XYPlot PlotESOneSample(double sampleSize, double minEffectSize, double maxEffectSize, int directional,
                                  double alpha, double stepFraction) {
  return CurveOverEffectSizes(SidesOf(directional), sampleSize, minEffectSize, maxEffectSize, alpha, stepFraction);
}

extern "C" XYZPlot PlotNaESOneSample(int minSampleSize, int maxSampleSize, double minEffectSize, double maxEffectSize,
                                     int directional, double alpha, double stepFraction) {
  return SurfaceOverEffectSizesAndSizes(SidesOf(directional), minSampleSize, maxSampleSize, minEffectSize,
                                        maxEffectSize, alpha, stepFraction);
}

extern "C" XYPlot PlotNRelated(double /*ignored*/, double mean1, double sd1, double mean2, double sd2,
                               int minSampleSize, int maxSampleSize, double correlation, int directional,
                               double alpha) {
  const PairedDesign design = {mean1, sd1, mean2, sd2, correlation};
  if (RejectsDesign(design)) return EmptyCurve();
  const Sides sides = SidesOf(directional);
  return CurveOverSizes(sides, minSampleSize, maxSampleSize, AcceptedEffectSize(sides, design, alpha), alpha);
}

extern "C" XYPlot PlotNRelatedFES(double effectSize, int minSampleSize, int maxSampleSize, int directional,
                                  double alpha) {
  return CurveOverSizes(SidesOf(directional), minSampleSize, maxSampleSize, effectSize, alpha);
}

extern "C" XYPlot PlotESRelated(double sampleSize, double minEffectSize, double maxEffectSize, int directional,
                                double alpha, double stepFraction) {
  return CurveOverEffectSizes(SidesOf(directional), sampleSize, minEffectSize, maxEffectSize, alpha, stepFraction);
}

extern "C" XYZPlot PlotNaESRelated(int minSampleSize, int maxSampleSize, double minEffectSize, double maxEffectSize,
                                   int directional, double alpha, double stepFraction) {
  return SurfaceOverEffectSizesAndSizes(SidesOf(directional), minSampleSize, maxSampleSize, minEffectSize,
                                        maxEffectSize, alpha, stepFraction);
}
