#include <algorithm>
#include <cmath>

#include "exports/records.h"
#include "exports/regression/model.h"
#include "frame/checks.h"
#include "frame/counts.h"
#include "kelpower.h"

using namespace kelpower;
using namespace kelpower::exports;
using regression::Effect;
using regression::RegressionTest;

namespace {

/// What a chart draws its tests from.
struct ChartModel : regression::Model {
  /// Charts are drawn more coarsely where the flag is exactly 1. Other values select random predictors too, but not the
  /// coarse axes; that is intended.
  bool isCoarse;
};

ChartModel ChartModelOf(double predictors, double tested, int randomPredictors, std::uint8_t includeIntercept,
                        double alpha) {
  return {ModelOf(predictors, tested, randomPredictors, includeIntercept, alpha), randomPredictors == 1};
}

/// The spacing that charts of random predictors are drawn with along an effect, whatever step is asked for.
constexpr double randomStep = 0.05;

bool RejectsModel(const ChartModel& model) { return RejectsPredictors(model) || RejectsOpenUnit(model.alpha); }

/// Sample sizes, as whole doubles.
struct SizeRange {
  double from;
  double to;

  bool IsAutomatic() const { return from == 0 || to == 0; }
  bool IsRejected(const ChartModel& model) const;
  std::optional<Axis> InSteps(double spacing) const;
  static SizeRange Widest(const ChartModel& model);
};

bool SizeRange::IsRejected(const ChartModel& model) const {
  if (from != 0 && from < model.predictors + model.Intercept()) return true;
  if (from > to) return true;
  return to > model.predictors + 5000;
}

/// The last point may lie beyond `to` by part of a step.
std::optional<Axis> SizeRange::InSteps(double spacing) const {
  if (!(from <= largestCount && to <= largestCount)) return std::nullopt;
  return CountedAxis(std::ceil((to - from) / spacing) + 1, from, spacing);
}

SizeRange SizeRange::Widest(const ChartModel& model) {
  const double predictors = std::trunc(model.predictors);
  return {model.Intercept() + 1 + predictors, predictors + 5000};
}

std::optional<Axis> CurveSizes(const ChartModel& model, SizeRange range) {
  if (range.IsAutomatic()) range = SizeRange::Widest(model);
  const double span = range.to - range.from;
  double spacing = 1;
  if (model.isCoarse) spacing = span < 150 ? 1 : span < 500 ? 5 : span < 1000 ? 10 : span < 2000 ? 20 : 50;
  return range.InSteps(spacing);
}

/// The automatic range of a surface of random predictors: from (1 - P) N to (2 - P) N, P the power of the design at the
/// size N at hand.
std::optional<Axis> SurfaceSizes(const ChartModel& model, SizeRange range, double sampleSize,
                                 const std::optional<Effect>& effect) {
  if (range.IsAutomatic() && !model.isRandom) range = SizeRange::Widest(model);
  if (range.IsAutomatic()) {
    const double power = PowerOrInvalid(model, sampleSize, effect);
    range.from = std::max(std::trunc(model.predictors) + 2, std::floor((1 - power) * sampleSize));
    range.to = std::ceil((2 - power) * sampleSize);
  }
  const bool everySecond = model.isCoarse && range.to - range.from >= 100;
  return range.InSteps(everySecond ? 2 : 1);
}

// Axes of effects leave out both ends, at which there is no test or no effect.

std::optional<Axis> FSquaredAxis(double step) { return InnerAxis(std::ceil(1 / step) - 1, 0, step); }

std::optional<Axis> CorrelationCurveAxis(double step) { return InnerAxis(std::trunc(2 / step) - 1, -1, step); }

std::optional<Axis> CorrelationSurfaceAxis(double step) { return InnerAxis(std::ceil(2 / step) - 1, -1, step); }

using EffectAt = std::optional<Effect> (*)(double position);

std::optional<Effect> EffectAtFSquared(double fSquared) { return Effect::OfFSquared(fSquared); }

std::optional<Effect> EffectAtCorrelation(double correlation) { return ModelFit{correlation, 0}.Effect(); }

XYPlot CurveOfSizes(const ChartModel& model, const std::optional<Effect>& effect, SizeRange range) {
  return Curve(CurveSizes(model, range), Precision::Single,
               [&](double sampleSize) { return PowerOrInvalid(model, sampleSize, effect); });
}

XYPlot CurveOfEffects(const ChartModel& model, double sampleSize, const std::optional<Axis>& axis, EffectAt effectAt) {
  const auto test = RegressionTest::Checked(model, sampleSize);
  return Curve(axis, Precision::Single, [&](double position) { return PowerOrInvalid(test, effectAt(position)); });
}

XYZPlot SurfaceOfSizesAndEffects(const ChartModel& model, const std::optional<Axis>& sizes,
                                 const std::optional<Axis>& effects, EffectAt effectAt) {
  return SurfaceByRows(sizes, effects, Precision::Single, [&](double sampleSize, const SurfaceLine& row) {
    const auto test = RegressionTest::Checked(model, sampleSize);
    row.Fill([&](double position) { return PowerOrInvalid(test, effectAt(position)); });
  });
}

}  // namespace

extern "C" XYPlot PlotNmlr(double predictors, double testedPredictors, double fullModelFit, double reducedRSquared,
                           int randomPredictors, std::uint8_t includeIntercept, double alpha, int sampleSizeFrom,
                           int sampleSizeTo) {
  const ChartModel model = ChartModelOf(predictors, testedPredictors, randomPredictors, includeIntercept, alpha);
  const ModelFit fit{fullModelFit, reducedRSquared};
  const SizeRange range{static_cast<double>(sampleSizeFrom), static_cast<double>(sampleSizeTo)};
  if (RejectsModel(model)) return EmptyCurve();
  if (range.IsRejected(model)) return EmptyCurve();
  if (fit.IsRejected()) return EmptyCurve();
  return CurveOfSizes(model, fit.Effect(), range);
}

extern "C" XYPlot PlotNmlrFES(double predictors, double testedPredictors, double effectSize, int randomPredictors,
                              std::uint8_t includeIntercept, double alpha, int sampleSizeFrom, int sampleSizeTo) {
  const ChartModel model = ChartModelOf(predictors, testedPredictors, randomPredictors, includeIntercept, alpha);
  const SizeRange range{static_cast<double>(sampleSizeFrom), static_cast<double>(sampleSizeTo)};
  if (RejectsModel(model)) return EmptyCurve();
  if (range.IsRejected(model)) return EmptyCurve();
  return CurveOfSizes(model, Effect::OfFSquared(effectSize), range);
}

extern "C" XYPlot PlotESmlr(double sampleSize, double predictors, double testedPredictors, int randomPredictors,
                            std::uint8_t includeIntercept, double alpha, double step) {
  const ChartModel model = ChartModelOf(predictors, testedPredictors, randomPredictors, includeIntercept, alpha);
  if (RejectsModel(model)) return EmptyCurve();
  if (RejectsSize(model, sampleSize)) return EmptyCurve();
  return CurveOfEffects(model, sampleSize, FSquaredAxis(step), EffectAtFSquared);
}

extern "C" XYPlot PlotCorrmlr(double sampleSize, double predictors, double testedPredictors, int randomPredictors,
                              std::uint8_t includeIntercept, double alpha, double step) {
  const ChartModel model = ChartModelOf(predictors, testedPredictors, randomPredictors, includeIntercept, alpha);
  if (RejectsModel(model)) return EmptyCurve();
  if (RejectsSize(model, sampleSize)) return EmptyCurve();
  const std::optional<Axis> axis = CorrelationCurveAxis(model.isCoarse ? randomStep : step);
  return CurveOfEffects(model, sampleSize, axis, EffectAtCorrelation);
}

extern "C" XYZPlot PlotNaCorrmlr(double sampleSize, double predictors, double testedPredictors, double fullModelFit,
                                 double reducedRSquared, int randomPredictors, std::uint8_t includeIntercept,
                                 double alpha, int sampleSizeFrom, int sampleSizeTo, double step) {
  const ChartModel model = ChartModelOf(predictors, testedPredictors, randomPredictors, includeIntercept, alpha);
  const ModelFit fit{fullModelFit, reducedRSquared};
  const SizeRange range{static_cast<double>(sampleSizeFrom), static_cast<double>(sampleSizeTo)};
  if (RejectsModel(model)) return EmptySurface();
  if (RejectsSize(model, sampleSize)) return EmptySurface();
  if (range.IsRejected(model)) return EmptySurface();
  if (fit.IsRejected()) return EmptySurface();
  return SurfaceOfSizesAndEffects(model, SurfaceSizes(model, range, sampleSize, fit.Effect()),
                                  CorrelationSurfaceAxis(model.isCoarse ? randomStep : step), EffectAtCorrelation);
}

extern "C" XYZPlot PlotNaESmlr(double sampleSize, double predictors, double testedPredictors, double effectSize,
                               int randomPredictors, std::uint8_t includeIntercept, double alpha, int sampleSizeFrom,
                               int sampleSizeTo, double step) {
  const ChartModel model = ChartModelOf(predictors, testedPredictors, randomPredictors, includeIntercept, alpha);
  const SizeRange range{static_cast<double>(sampleSizeFrom), static_cast<double>(sampleSizeTo)};
  if (RejectsModel(model)) return EmptySurface();
  if (RejectsSize(model, sampleSize)) return EmptySurface();
  if (range.IsRejected(model)) return EmptySurface();
  const auto effect = Effect::OfFSquared(effectSize);
  return SurfaceOfSizesAndEffects(model, SurfaceSizes(model, range, sampleSize, effect),
                                  FSquaredAxis(model.isCoarse ? randomStep : step), EffectAtFSquared);
}
