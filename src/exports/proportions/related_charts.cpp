#include <algorithm>
#include <cmath>

#include "exports/proportions/designs.h"
#include "exports/proportions/related.h"
#include "exports/records.h"
#include "exports/sentinels.h"
#include "frame/checks.h"
#include "kelpower.h"
#include "proportions/mcnemar.h"

using namespace kelpower;
using namespace kelpower::proportions;
using namespace kelpower::exports;

namespace {

constexpr int largestChartSize = 2500;
constexpr double automaticSpan = 3;  // of ratios

bool RejectsDesign(double sampleSize, double alpha) { return sampleSize < 2 || RejectsAlpha(alpha); }

bool RejectsProbability(double probability) { return probability < 0 || probability > 1; }

/// No axis where an automatic end is infinite or NaN, which it is at a probability of 0 or 1.
std::optional<Axis> RatioAxis(double from, double to, double stepFraction) {
  if (!std::isfinite(from) || !std::isfinite(to)) return std::nullopt;
  return FractionAxis(from, to, stepFraction, AxisEnd::OnGrid);
}

bool RejectsRiskRatios(double p12, double p21, double minRatio, double maxRatio) {
  if (maxRatio > 10) return true;
  if (minRatio != 0 && minRatio < 0.1) return true;
  if (minRatio != 0 && p12 <= 0.5 && minRatio < p12 / (1 - p12)) return true;
  return maxRatio != 0 && p12 > 0.5 && maxRatio > (1 - p21) / p21;
}

std::optional<Axis> RiskRatioAxis(double p12, double p21, double minRatio, double maxRatio, double step) {
  if (minRatio != 0 && maxRatio != 0) return RatioAxis(minRatio, maxRatio, step);
  if (p12 <= 0.5) return RatioAxis(p12 / (1 - p12), automaticSpan, step);
  return RatioAxis(1 / automaticSpan, (1 - p21) / p21, step);
}

double LargestCorrelation(double marginal1, double marginal2) {
  const double sds = std::sqrt((1 - marginal2) * marginal2 * marginal1 * (1 - marginal1));
  return std::min((1 - marginal2) * marginal1, (1 - marginal1) * marginal2) / sds;
}

}  // namespace

extern "C" XYPlot PlotNRelSampBionm(double sampleSize, double discordant12, double discordant21, int minSampleSize,
                                    int maxSampleSize, int oneSided, int exact, double alpha) {
  if (RejectsDesign(sampleSize, alpha)) return EmptyCurve();
  if (RejectsProbability(discordant12)) return EmptyCurve();
  if (RejectsProbability(discordant21)) return EmptyCurve();
  if (minSampleSize > maxSampleSize) return EmptyCurve();
  if (minSampleSize < 0) return EmptyCurve();
  if (maxSampleSize > largestChartSize) return EmptyCurve();

  McNemarTest test(McNemarDesignOf(oneSided, exact, alpha));
  return Curve(SizeAxis(minSampleSize, maxSampleSize), Precision::Single, [&](double size) {
    return OrSentinel(test.Power(size, {discordant12, discordant21}));
  });
}

extern "C" XYPlot PlotRiskDiffRelSampBionm(double sampleSize, double discordant12, int oneSided, int exact,
                                           double alpha, double step) {
  if (RejectsDesign(sampleSize, alpha)) return EmptyCurve();
  if (RejectsProbability(discordant12)) return EmptyCurve();

  const double spacing = step * (1 - discordant12);
  const double origin = 2 * discordant12 - 1;
  const double count = std::trunc((discordant12 - origin) / spacing - 1 + 0.5);
  McNemarTest test(McNemarDesignOf(oneSided, exact, alpha));
  return Curve(InnerAxis(count, origin, spacing), Precision::Single, [&](double difference) {
    return OrSentinel(test.Power(sampleSize, {discordant12, discordant12 - difference}));
  });
}

// Up to p12 = 0.5 the ratio varies p21, above it p12. The last point may lie a little beyond the range, so p12 is
// capped there at p12 + p21 = 1.
extern "C" XYPlot PlotRiskRatioRelSampBionm(double sampleSize, double discordant12, double discordant21,
                                            double minRatio, double maxRatio, int oneSided, int exact, double alpha,
                                            double step) {
  if (RejectsDesign(sampleSize, alpha)) return EmptyCurve();
  if (RejectsProbability(discordant12)) return EmptyCurve();
  if (RejectsProbability(discordant21)) return EmptyCurve();
  if (RejectsRiskRatios(discordant12, discordant21, minRatio, maxRatio)) return EmptyCurve();

  const std::optional<Axis> axis = RiskRatioAxis(discordant12, discordant21, minRatio, maxRatio, step);
  if (!axis) return EmptyCurve();
  const double lastRatio = axis->At(axis->count - 1);
  McNemarTest test(McNemarDesignOf(oneSided, exact, alpha));
  return Curve(axis, Precision::Single, [&](double ratio) {
    DiscordantPairs pairs = discordant12 <= 0.5 ? DiscordantPairs{discordant12, discordant12 / ratio}
                                                : DiscordantPairs{ratio * discordant21, discordant21};
    if (ratio == lastRatio) pairs.p12 = std::min(pairs.p12, 1 - discordant21);
    return OrSentinel(test.Power(sampleSize, pairs));
  });
}

extern "C" XYPlot PlotOddsRatioRelSampBionm(double sampleSize, double discordant12, double minRatio, double maxRatio,
                                            int oneSided, int exact, double alpha, double step) {
  if (RejectsDesign(sampleSize, alpha)) return EmptyCurve();
  if (RejectsProbability(discordant12)) return EmptyCurve();
  if (minRatio > maxRatio) return EmptyCurve();
  const double odds = discordant12 / (1 - discordant12);
  const double lowest = odds * odds;  // p12 and p21 then sum to 1
  if (minRatio != 0 && minRatio < lowest) return EmptyCurve();
  if (maxRatio > lowest + 10) return EmptyCurve();

  const bool isAutomatic = minRatio == 0 || maxRatio == 0;
  const std::optional<Axis> axis =
      isAutomatic ? RatioAxis(lowest, lowest + automaticSpan, step) : RatioAxis(minRatio, maxRatio, step);
  McNemarTest test(McNemarDesignOf(oneSided, exact, alpha));
  return Curve(axis, Precision::Single, [&](double ratio) {
    return OrSentinel(
        test.Power(sampleSize, {discordant12, discordant12 / ((1 - discordant12) * ratio + discordant12)}));
  });
}

extern "C" XYPlot PlotCorrRelSampBionm(double sampleSize, double marginal1, double marginal2, int oneSided, int exact,
                                       double alpha, double step) {
  if (RejectsDesign(sampleSize, alpha)) return EmptyCurve();
  if (RejectsMarginals(marginal1, marginal2)) return EmptyCurve();

  McNemarTest test(McNemarDesignOf(oneSided, exact, alpha));
  return Curve(
      StepAxis(-1, LargestCorrelation(marginal1, marginal2), step), Precision::Single,
      [&](double correlation) { return PowerOfMarginals(test, sampleSize, marginal1, marginal2, correlation); });
}

extern "C" XYZPlot PlotPropRelSampBionm(double sampleSize, int oneSided, int exact, double alpha, double step) {
  if (RejectsDesign(sampleSize, alpha)) return EmptySurface();

  McNemarTest test(McNemarDesignOf(oneSided, exact, alpha));
  const auto fillRow = [&](double p12, const SurfaceLine& row) {
    row.Fill([&](double p21) {
      if (p12 + p21 > 1) return 0.0;
      if (p12 == p21) return 0.0;
      return OrSentinel(test.Power(sampleSize, {p12, p21}));
    });
  };
  return SurfaceByRows(ProportionGrid(step), ProportionGrid(step), Precision::Single, fillRow);
}

extern "C" XYZPlot PlotMargPropRelSampBionm(double sampleSize, double correlation, int oneSided, int exact,
                                            double alpha, double step) {
  if (RejectsDesign(sampleSize, alpha)) return EmptySurface();
  if (correlation <= -1 || correlation >= 1) return EmptySurface();

  // Equal proportions are computed here, unlike on the surface over the discordant probabilities.
  McNemarTest test(McNemarDesignOf(oneSided, exact, alpha));
  const auto fillRow = [&](double marginal1, const SurfaceLine& row) {
    row.Fill([&](double marginal2) {
      return marginal1 + marginal2 > 1 ? 0.0 : PowerOfMarginals(test, sampleSize, marginal1, marginal2, correlation);
    });
  };
  return SurfaceByRows(ProportionGrid(step), ProportionGrid(step), Precision::Single, fillRow);
}
