#include "anova/contrast.h"
#include "exports/anova/axes.h"
#include "exports/anova/contrast.h"
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

/// A contrast of given means whose standardised effect is asked for again and again, at different standard deviations.
/// The first effect repairs the caller's coefficients as `EffectSizeSC` does, and is missing when they cannot be; later
/// ones are those of the repaired coefficients.
class ChartedContrast {
public:
  ChartedContrast(int numGroups, const double* groupMeans, const double* groupSizes, double* contrastCoefficients)
      : means_(groupMeans, numGroups), sizes_(groupSizes, numGroups), coefficients_(contrastCoefficients) {}

  double Noncentrality(double sd, double totalSize) {
    const double effectSize = EffectSize(sd);
    return weighted_.Noncentrality(EffectOrInfinity(effectSize), weighted_.RelativeSize(totalSize));
  }

private:
  double EffectSize(double sd) {
    if (repaired_) return StandardisedContrast(value_, sd);
    repaired_ = true;
    const int numGroups = means_.Count();
    const double effectSize = EffectSizeSC(numGroups, means_.begin(), sd, coefficients_);
    const PerGroup repaired(coefficients_, numGroups);
    value_ = ContrastValue(repaired, means_);
    weighted_ = WeightedContrast(repaired, sizes_);
    return effectSize;
  }

  PerGroup means_;
  PerGroup sizes_;
  double* coefficients_;
  bool repaired_ = false;
  double value_ = 0;           ///< sum c_i m_i, once repaired
  WeightedContrast weighted_;  ///< once repaired
};

double PowerAt(const ContrastTest& test, ChartedContrast& contrast, double sd, double totalSize) {
  if (!test.IsValid()) return KelMV::Missing();
  if (RejectsStandardDeviation(sd)) return KelMV::Missing();
  return OrMissing(test.Power(contrast.Noncentrality(sd, totalSize)));
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
    return PowerAt(ContrastTest(numGroups, size, isDirectional != 0, alpha), contrast, pooledSD, size);
  };
  return Curve(TotalSizeAxis({groupSizes, numGroups}, from, to, power), Precision::Double, power);
}

// There is no automatic range: an end of 0 is a total size of 0, unlike in the other size charts; that is intended.
extern "C" XYPlot PlotNSCFES(int numGroups, double effectSize, const double* groupSizes,
                             const double* contrastCoefficients, int from, int to, int isDirectional, double alpha) {
  if (numGroups < 2) return EmptyCurve();
  if (RejectsSizeRange(from, to)) return EmptyCurve();
  if (RejectsAlpha(alpha)) return EmptyCurve();

  const WeightedContrast contrast({contrastCoefficients, numGroups}, {groupSizes, numGroups});
  return Curve(SizeAxis(from, to), Precision::Double, [&](double size) {
    const ContrastTest test(numGroups, size, isDirectional != 0, alpha);
    return OrMissing(test.Power(contrast.Noncentrality(EffectOrInfinity(effectSize), contrast.RelativeSize(size))));
  });
}

extern "C" XYPlot PlotSDSC(int numGroups, const double* groupMeans, double pooledSD, const double* groupSizes,
                           double* contrastCoefficients, double sdFrom, double sdTo, int isDirectional, double alpha,
                           double stepFraction) {
  if (numGroups < 2) return EmptyCurve();
  if (RejectsStandardDeviation(pooledSD)) return EmptyCurve();
  if (sdFrom > sdTo) return EmptyCurve();
  if (RejectsAlpha(alpha)) return EmptyCurve();

  const double totalSize = Sum(PerGroup(groupSizes, numGroups));
  const ContrastTest test(numGroups, totalSize, isDirectional != 0, alpha);
  ChartedContrast contrast(numGroups, groupMeans, groupSizes, contrastCoefficients);
  return Curve(StandardDeviationAxis({groupMeans, numGroups}, {groupSizes, numGroups}, sdFrom, sdTo, stepFraction),
               Precision::Single, [&](double sd) { return PowerAt(test, contrast, sd, totalSize); });
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
    return PowerAt(ContrastTest(numGroups, size, isDirectional != 0, alpha), contrast, pooledSD, size);
  };
  return SurfaceByRows(
      SurfaceTotalSizeAxis({groupSizes, numGroups}, from, to, currentPower),
      StandardDeviationAxis({groupMeans, numGroups}, {groupSizes, numGroups}, sdFrom, sdTo, stepFraction),
      Precision::Double, [&](double size, const SurfaceLine& row) {
        const ContrastTest test(numGroups, size, isDirectional != 0, alpha);
        row.Fill([&](double sd) { return PowerAt(test, contrast, sd, size); });
      });
}
