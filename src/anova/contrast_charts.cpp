#include "anova/axes.h"
#include "anova/contrast_power.h"
#include "frame/charts.h"
#include "frame/checks.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"

using namespace kelpower;
using KelCommon::KelMV;

namespace {

double PowerOrMissing(const ContrastTest& test, ChartedContrast& contrast, double pooledSD, double sampleSize) {
  if (!test.IsValid()) return KelMV::Missing();
  if (RejectsStandardDeviation(pooledSD)) return KelMV::Missing();
  return test.Power(contrast.Noncentrality(pooledSD, sampleSize));
}

}  // namespace

extern "C" XYPlot PlotNSC(int numGroups, const double* groupMeans, double pooledSD, const double* groupSizes,
                          double* contrastCoefficients, int from, int to, int isDirectional, double alpha) {
  if (numGroups < 2) return EmptyCurve();
  if (RejectsStandardDeviation(pooledSD)) return EmptyCurve();
  if (RejectsSizeRange(from, to)) return EmptyCurve();
  if (RejectsAlpha(alpha)) return EmptyCurve();

  ChartedContrast contrast(numGroups, groupMeans, groupSizes, contrastCoefficients);
  const auto power = [&](double size) {
    return PowerOrMissing(ContrastTest(numGroups, size, isDirectional != 0, alpha), contrast, pooledSD, size);
  };
  return Curve(TotalSizeAxis(numGroups, groupSizes, from, to, power), Precision::Double, power);
}

// There is no automatic range: an end of 0 is a total size of 0, unlike in the other size charts; that is intended.
extern "C" XYPlot PlotNSCFES(int numGroups, double effectSize, const double* groupSizes,
                             const double* contrastCoefficients, int from, int to, int isDirectional, double alpha) {
  if (numGroups < 2) return EmptyCurve();
  if (RejectsSizeRange(from, to)) return EmptyCurve();
  if (RejectsAlpha(alpha)) return EmptyCurve();

  const double totalSize = SampleSizeTotal(numGroups, groupSizes);
  const double variance = ContrastVariance(numGroups, contrastCoefficients, groupSizes);
  return Curve(SizeAxis(from, to), Precision::Double, [&](double size) {
    return ContrastTest(numGroups, size, isDirectional != 0, alpha)
        .Power(ContrastNoncentrality(effectSize, size / totalSize, variance));
  });
}

extern "C" XYPlot PlotSDSC(int numGroups, const double* groupMeans, double pooledSD, const double* groupSizes,
                           double* contrastCoefficients, double sdFrom, double sdTo, int isDirectional, double alpha,
                           double stepFraction) {
  if (numGroups < 2) return EmptyCurve();
  if (RejectsStandardDeviation(pooledSD)) return EmptyCurve();
  if (sdFrom > sdTo) return EmptyCurve();
  if (RejectsAlpha(alpha)) return EmptyCurve();

  const double totalSize = SampleSizeTotal(numGroups, groupSizes);
  const ContrastTest test(numGroups, totalSize, isDirectional != 0, alpha);
  ChartedContrast contrast(numGroups, groupMeans, groupSizes, contrastCoefficients);
  return Curve(StandardDeviationAxis(numGroups, groupMeans, groupSizes, sdFrom, sdTo, stepFraction), Precision::Single,
               [&](double sd) { return PowerOrMissing(test, contrast, sd, totalSize); });
}

// The number of groups is not checked here; fewer than two give missing points.
extern "C" XYZPlot PlotNaSDSC(int numGroups, const double* groupMeans, double pooledSD, const double* groupSizes,
                              double* contrastCoefficients, int from, int to, double sdFrom, double sdTo,
                              int isDirectional, double alpha, double stepFraction) {
  if (sdFrom > sdTo) return EmptySurface();
  if (RejectsStandardDeviation(pooledSD)) return EmptySurface();
  if (RejectsSizeRange(from, to)) return EmptySurface();
  if (RejectsAlpha(alpha)) return EmptySurface();

  ChartedContrast contrast(numGroups, groupMeans, groupSizes, contrastCoefficients);
  const auto currentPower = [&](double size) {
    return PowerOrMissing(ContrastTest(numGroups, size, isDirectional != 0, alpha), contrast, pooledSD, size);
  };
  return SurfaceByRows(SurfaceTotalSizeAxis(numGroups, groupSizes, from, to, currentPower),
                       StandardDeviationAxis(numGroups, groupMeans, groupSizes, sdFrom, sdTo, stepFraction),
                       Precision::Double, [&](double size, const SurfaceLine& row) {
                         const ContrastTest test(numGroups, size, isDirectional != 0, alpha);
                         row.Fill([&](double sd) { return PowerOrMissing(test, contrast, sd, size); });
                       });
}
