#include "anova/overall.h"
#include "exports/anova/axes.h"
#include "exports/records.h"
#include "exports/sentinels.h"
#include "frame/checks.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"

using namespace kelpower;
using namespace kelpower::anova;
using namespace kelpower::exports;
using KelCommon::KelMV;

namespace {

double PowerAt(const OverallTest& test, const GroupSpread& spread, double sd, double totalSize) {
  if (RejectsStandardDeviation(sd)) return KelMV::Missing();
  return OrMissing(test.Power(spread.Noncentrality(sd, totalSize)));
}

}  // namespace

extern "C" XYPlot PlotNOverallTest(int numGroups, const double* groupMeans, double pooledSD, const double* groupSizes,
                                   int from, int to, double alpha) {
  if (numGroups < 2) return EmptyCurve();
  if (RejectsStandardDeviation(pooledSD)) return EmptyCurve();
  if (RejectsSizeRange(from, to)) return EmptyCurve();
  if (RejectsAlpha(alpha)) return EmptyCurve();

  const GroupSpread spread = GroupSpread::Of({groupMeans, numGroups}, {groupSizes, numGroups});
  const auto power = [&](double size) { return OrMissing(PowerOfMeans(spread, pooledSD, numGroups, size, alpha)); };
  return Curve(TotalSizeAxis({groupSizes, numGroups}, from, to, power), Precision::Double, power);
}

extern "C" XYPlot PlotNOverallTestFES(int numGroups, double effectSize, int isEtaSquared, const double* groupSizes,
                                      int from, int to, double alpha) {
  if (numGroups < 2) return EmptyCurve();
  if (RejectsSizeRange(from, to)) return EmptyCurve();
  if (RejectsAlpha(alpha)) return EmptyCurve();

  const auto power = [&](double size) {
    return OrMissing(PowerOfEffect({effectSize, isEtaSquared != 0}, numGroups, size, alpha));
  };
  return Curve(TotalSizeAxis({groupSizes, numGroups}, from, to, power), Precision::Double, power);
}

extern "C" XYPlot PlotESOverallTest(int numGroups, int isEtaSquared, const double* groupSizes, double esFrom,
                                    double esTo, double alpha, double stepFraction) {
  if (numGroups < 2) return EmptyCurve();
  if (esFrom > esTo) return EmptyCurve();
  if (RejectsAlpha(alpha)) return EmptyCurve();

  const double totalSize = Sum(PerGroup(groupSizes, numGroups));
  const OverallTest test(numGroups, totalSize, alpha);
  return Curve(EffectSizeAxis(isEtaSquared != 0, esFrom, esTo, stepFraction), Precision::Single,
               [&](double effectSize) {
                 return OrMissing(test.Power(EffectSize{effectSize, isEtaSquared != 0}.Noncentrality(totalSize)));
               });
}

extern "C" XYPlot PlotSDOverallTest(int numGroups, const double* groupMeans, double pooledSD, const double* groupSizes,
                                    double sdFrom, double sdTo, double alpha, double stepFraction) {
  if (numGroups < 2) return EmptyCurve();
  if (RejectsStandardDeviation(pooledSD)) return EmptyCurve();
  if (sdFrom > sdTo) return EmptyCurve();
  if (RejectsAlpha(alpha)) return EmptyCurve();

  const double totalSize = Sum(PerGroup(groupSizes, numGroups));
  const GroupSpread spread = GroupSpread::Of({groupMeans, numGroups}, {groupSizes, numGroups});
  const OverallTest test(numGroups, totalSize, alpha);
  return Curve(StandardDeviationAxis({groupMeans, numGroups}, {groupSizes, numGroups}, sdFrom, sdTo, stepFraction),
               Precision::Single, [&](double sd) { return PowerAt(test, spread, sd, totalSize); });
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

  const GroupSpread spread = GroupSpread::Of({groupMeans, numGroups}, {groupSizes, numGroups});
  const auto currentPower = [&](double size) {
    return OrMissing(PowerOfMeans(spread, pooledSD, numGroups, size, alpha));
  };
  return SurfaceByRows(
      SurfaceTotalSizeAxis({groupSizes, numGroups}, from, to, currentPower),
      StandardDeviationAxis({groupMeans, numGroups}, {groupSizes, numGroups}, sdFrom, sdTo, stepFraction),
      Precision::Double, [&](double size, const SurfaceLine& row) {
        const OverallTest test(numGroups, size, alpha);
        row.Fill([&](double sd) { return PowerAt(test, spread, sd, size); });
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
    return OrMissing(PowerOfEffect({effectSize, isEtaSquared != 0}, numGroups, size, alpha));
  };
  return SurfaceByRows(SurfaceTotalSizeAxis({groupSizes, numGroups}, from, to, currentPower),
                       EffectSizeAxis(isEtaSquared != 0, esFrom, esTo, stepFraction), Precision::Double,
                       [&](double size, const SurfaceLine& row) {
                         const OverallTest test(numGroups, size, alpha);
                         row.Fill([&](double effect) {
                           return OrMissing(test.Power(EffectSize{effect, isEtaSquared != 0}.Noncentrality(size)));
                         });
                       });
}
