#include "anova/axes.h"
#include "anova/overall_power.h"
#include "frame/charts.h"
#include "frame/checks.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"

using namespace kelpower;
using KelCommon::KelMV;

namespace {

double PowerOrMissing(const OverallTest& test, const GroupSpread& spread, double pooledSD, double sampleSize) {
  if (RejectsStandardDeviation(pooledSD)) return KelMV::Missing();
  return test.Power(spread.Noncentrality(pooledSD, sampleSize));
}

}  // namespace

extern "C" XYPlot PlotNOverallTest(int numGroups, const double* groupMeans, double pooledSD, const double* groupSizes,
                                   int from, int to, double alpha) {
  if (numGroups < 2) return EmptyCurve();
  if (RejectsStandardDeviation(pooledSD)) return EmptyCurve();
  if (RejectsSizeRange(from, to)) return EmptyCurve();
  if (RejectsAlpha(alpha)) return EmptyCurve();

  const GroupSpread spread = GroupSpread::Of(numGroups, groupMeans, groupSizes);
  const auto power = [&](double size) { return OverallPowerFromMeans(numGroups, spread, pooledSD, size, alpha); };
  return Curve(TotalSizeAxis(numGroups, groupSizes, from, to, power), Precision::Double, power);
}

extern "C" XYPlot PlotNOverallTestFES(int numGroups, double effectSize, int isEtaSquared, const double* groupSizes,
                                      int from, int to, double alpha) {
  if (numGroups < 2) return EmptyCurve();
  if (RejectsSizeRange(from, to)) return EmptyCurve();
  if (RejectsAlpha(alpha)) return EmptyCurve();

  const auto power = [&](double size) {
    return OverallPowerFromEffectSize(numGroups, effectSize, isEtaSquared != 0, size, alpha);
  };
  return Curve(TotalSizeAxis(numGroups, groupSizes, from, to, power), Precision::Double, power);
}

extern "C" XYPlot PlotESOverallTest(int numGroups, int isEtaSquared, const double* groupSizes, double esFrom,
                                    double esTo, double alpha, double stepFraction) {
  if (numGroups < 2) return EmptyCurve();
  if (esFrom > esTo) return EmptyCurve();
  if (RejectsAlpha(alpha)) return EmptyCurve();

  const double totalSize = SampleSizeTotal(numGroups, groupSizes);
  const OverallTest test(numGroups, totalSize, alpha);
  return Curve(EffectSizeAxis(isEtaSquared != 0, esFrom, esTo, stepFraction), Precision::Single,
               [&](double effectSize) {
                 return test.Power(NoncentralityFromEffectSize(effectSize, isEtaSquared != 0, totalSize));
               });
}

extern "C" XYPlot PlotSDOverallTest(int numGroups, const double* groupMeans, double pooledSD, const double* groupSizes,
                                    double sdFrom, double sdTo, double alpha, double stepFraction) {
  if (numGroups < 2) return EmptyCurve();
  if (RejectsStandardDeviation(pooledSD)) return EmptyCurve();
  if (sdFrom > sdTo) return EmptyCurve();
  if (RejectsAlpha(alpha)) return EmptyCurve();

  const double totalSize = SampleSizeTotal(numGroups, groupSizes);
  const GroupSpread spread = GroupSpread::Of(numGroups, groupMeans, groupSizes);
  const OverallTest test(numGroups, totalSize, alpha);
  return Curve(StandardDeviationAxis(numGroups, groupMeans, groupSizes, sdFrom, sdTo, stepFraction), Precision::Single,
               [&](double sd) { return PowerOrMissing(test, spread, sd, totalSize); });
}

// A level of 1 and above is not rejected by the two surfaces, deliberately: every point is then missing.
extern "C" XYZPlot PlotNaSDOverallTest(int numGroups, const double* groupMeans, double pooledSD,
                                       const double* groupSizes, int from, int to, double sdFrom, double sdTo,
                                       double alpha, double stepFraction) {
  if (numGroups < 2) return EmptySurface();
  if (RejectsStandardDeviation(pooledSD)) return EmptySurface();
  if (sdFrom > sdTo) return EmptySurface();
  if (RejectsSizeRange(from, to)) return EmptySurface();
  if (alpha <= 0) return EmptySurface();

  const GroupSpread spread = GroupSpread::Of(numGroups, groupMeans, groupSizes);
  const auto currentPower = [&](double size) {
    return OverallPowerFromMeans(numGroups, spread, pooledSD, size, alpha);
  };
  return SurfaceByRows(SurfaceTotalSizeAxis(numGroups, groupSizes, from, to, currentPower),
                       StandardDeviationAxis(numGroups, groupMeans, groupSizes, sdFrom, sdTo, stepFraction),
                       Precision::Double, [&](double size, const SurfaceLine& row) {
                         const OverallTest test(numGroups, size, alpha);
                         row.Fill([&](double sd) { return PowerOrMissing(test, spread, sd, size); });
                       });
}

extern "C" XYZPlot PlotNaESOverallTest(int numGroups, double effectSize, int isEtaSquared, const double* groupSizes,
                                       int from, int to, double esFrom, double esTo, double alpha,
                                       double stepFraction) {
  if (numGroups < 2) return EmptySurface();
  if (esFrom > esTo) return EmptySurface();
  if (RejectsSizeRange(from, to)) return EmptySurface();
  if (alpha <= 0) return EmptySurface();

  const auto currentPower = [&](double size) {
    return OverallPowerFromEffectSize(numGroups, effectSize, isEtaSquared != 0, size, alpha);
  };
  return SurfaceByRows(SurfaceTotalSizeAxis(numGroups, groupSizes, from, to, currentPower),
                       EffectSizeAxis(isEtaSquared != 0, esFrom, esTo, stepFraction), Precision::Double,
                       [&](double size, const SurfaceLine& row) {
                         const OverallTest test(numGroups, size, alpha);
                         row.Fill([&](double effect) {
                           return test.Power(NoncentralityFromEffectSize(effect, isEtaSquared != 0, size));
                         });
                       });
}
