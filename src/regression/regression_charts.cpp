#include <algorithm>
#include <cmath>
#include <limits>

#include "frame/charts.h"
#include "frame/checks.h"
#include "kelpower.h"
#include "regression/regression.h"

namespace kelpower {

namespace {

/// The spacing that charts of random predictors are drawn with along an effect, whatever step is asked for.
constexpr double kRandomStep = 0.05;

/// Charts are drawn more coarsely where the flag is exactly 1. Other values select random predictors too, but not the
/// coarse axes; that is intended.
bool IsCoarse(const RegressionModel& model) { return model.randomPredictors == 1; }

bool RejectsModel(const RegressionModel& model) { return RejectsPredictors(model) || RejectsOpenUnit(model.alpha); }

/// Sample sizes, as whole doubles.
struct SizeRange {
  double from;
  double to;

  bool IsAutomatic() const { return from == 0 || to == 0; }
  bool IsRejected(const RegressionModel& model) const;
  std::optional<Axis> InSteps(double spacing) const;
  static SizeRange Widest(const RegressionModel& model);
};

bool SizeRange::IsRejected(const RegressionModel& model) const {
  if (from != 0 && from < model.predictors + model.Intercept()) return true;
  if (from > to) return true;
  return to > model.predictors + 5000;
}

/// The last point may lie beyond `to` by part of a step.
std::optional<Axis> SizeRange::InSteps(double spacing) const {
  constexpr double kLargest = std::numeric_limits<std::int32_t>::max();
  if (!(from <= kLargest && to <= kLargest)) return std::nullopt;
  return CountedAxis(std::ceil((to - from) / spacing) + 1, from, spacing);
}

SizeRange SizeRange::Widest(const RegressionModel& model) {
  const double predictors = std::trunc(model.predictors);
  return {model.Intercept() + 1 + predictors, predictors + 5000};
}

std::optional<Axis> CurveSizes(const RegressionModel& model, SizeRange range) {
  if (range.IsAutomatic()) range = SizeRange::Widest(model);
  const double span = range.to - range.from;
  double spacing = 1;
  if (IsCoarse(model)) spacing = span < 150 ? 1 : span < 500 ? 5 : span < 1000 ? 10 : span < 2000 ? 20 : 50;
  return range.InSteps(spacing);
}

/// The automatic range of a surface of random predictors lies around the size at hand, between the share of it that the
/// power at hand leaves open and that share above it.
std::optional<Axis> SurfaceSizes(const RegressionModel& model, SizeRange range, double sampleSize,
                                 const std::optional<RegressionEffect>& effect) {
  if (range.IsAutomatic() && model.randomPredictors == 0) range = SizeRange::Widest(model);
  if (range.IsAutomatic()) {
    const double power = RegressionPower(model, sampleSize, effect);
    range.from = std::max(std::trunc(model.predictors) + 2, std::floor((1 - power) * sampleSize));
    range.to = std::ceil((2 - power) * sampleSize);
  }
  const bool everySecond = IsCoarse(model) && range.to - range.from >= 100;
  return range.InSteps(everySecond ? 2 : 1);
}

// Axes of effects leave out both ends, at which there is no test or no effect.

std::optional<Axis> InnerAxis(double steps, double start, double step) {
  if (!(step > 0)) return std::nullopt;
  std::optional<Axis> axis = CountedAxis(steps - 1, start, step);
  if (axis) axis->firstIndex = 1;
  return axis;
}

std::optional<Axis> FSquaredAxis(double step) { return InnerAxis(std::ceil(1 / step), 0, step); }

std::optional<Axis> CorrelationCurveAxis(double step) { return InnerAxis(std::trunc(2 / step), -1, step); }

std::optional<Axis> CorrelationSurfaceAxis(double step) { return InnerAxis(std::ceil(2 / step), -1, step); }

using EffectAt = std::optional<RegressionEffect> (*)(double position);

std::optional<RegressionEffect> EffectAtFSquared(double fSquared) { return RegressionEffect::OfFSquared(fSquared); }

std::optional<RegressionEffect> EffectAtCorrelation(double correlation) { return ModelFit{correlation, 0}.Effect(); }

XYPlot CurveOfSizes(const RegressionModel& model, const std::optional<RegressionEffect>& effect, SizeRange range) {
  return Curve(CurveSizes(model, range), Precision::Single,
               [&](double sampleSize) { return RegressionPower(model, sampleSize, effect); });
}

XYPlot CurveOfEffects(const RegressionModel& model, double sampleSize, const std::optional<Axis>& axis,
                      EffectAt effectAt) {
  const auto test = RegressionTest::Checked(model, sampleSize);
  return Curve(axis, Precision::Single,
               [&](double position) { return RegressionTest::PowerOrRejected(test, effectAt(position)); });
}

XYZPlot SurfaceOfSizesAndEffects(const RegressionModel& model, const std::optional<Axis>& sizes,
                                 const std::optional<Axis>& effects, EffectAt effectAt) {
  return SurfaceByRows(sizes, effects, Precision::Single, [&](double sampleSize, const SurfaceLine& row) {
    const auto test = RegressionTest::Checked(model, sampleSize);
    row.Fill([&](double position) { return RegressionTest::PowerOrRejected(test, effectAt(position)); });
  });
}

}  // namespace

}  // namespace kelpower

using namespace kelpower;

extern "C" XYPlot PlotNmlr(double predictors, double testedPredictors, double fullModelFit, double reducedRSquared,
                           int randomPredictors, std::uint8_t includeIntercept, double alpha, int sampleSizeFrom,
                           int sampleSizeTo) {
  const RegressionModel model{predictors, testedPredictors, randomPredictors, includeIntercept, alpha};
  const ModelFit fit{fullModelFit, reducedRSquared};
  const SizeRange range{static_cast<double>(sampleSizeFrom), static_cast<double>(sampleSizeTo)};
  if (RejectsModel(model)) return EmptyCurve();
  if (range.IsRejected(model)) return EmptyCurve();
  if (fit.IsRejected()) return EmptyCurve();
  return CurveOfSizes(model, fit.Effect(), range);
}

extern "C" XYPlot PlotNmlrFES(double predictors, double testedPredictors, double effectSize, int randomPredictors,
                              std::uint8_t includeIntercept, double alpha, int sampleSizeFrom, int sampleSizeTo) {
  const RegressionModel model{predictors, testedPredictors, randomPredictors, includeIntercept, alpha};
  const SizeRange range{static_cast<double>(sampleSizeFrom), static_cast<double>(sampleSizeTo)};
  if (RejectsModel(model)) return EmptyCurve();
  if (range.IsRejected(model)) return EmptyCurve();
  return CurveOfSizes(model, RegressionEffect::OfFSquared(effectSize), range);
}

extern "C" XYPlot PlotESmlr(double sampleSize, double predictors, double testedPredictors, int randomPredictors,
                            std::uint8_t includeIntercept, double alpha, double step) {
  const RegressionModel model{predictors, testedPredictors, randomPredictors, includeIntercept, alpha};
  if (RejectsModel(model)) return EmptyCurve();
  if (RejectsSampleSize(model, sampleSize)) return EmptyCurve();
  return CurveOfEffects(model, sampleSize, FSquaredAxis(step), EffectAtFSquared);
}

extern "C" XYPlot PlotCorrmlr(double sampleSize, double predictors, double testedPredictors, int randomPredictors,
                              std::uint8_t includeIntercept, double alpha, double step) {
  const RegressionModel model{predictors, testedPredictors, randomPredictors, includeIntercept, alpha};
  if (RejectsModel(model)) return EmptyCurve();
  if (RejectsSampleSize(model, sampleSize)) return EmptyCurve();
  const std::optional<Axis> axis = CorrelationCurveAxis(IsCoarse(model) ? kRandomStep : step);
  return CurveOfEffects(model, sampleSize, axis, EffectAtCorrelation);
}

extern "C" XYZPlot PlotNaCorrmlr(double sampleSize, double predictors, double testedPredictors, double fullModelFit,
                                 double reducedRSquared, int randomPredictors, std::uint8_t includeIntercept,
                                 double alpha, int sampleSizeFrom, int sampleSizeTo, double step) {
  const RegressionModel model{predictors, testedPredictors, randomPredictors, includeIntercept, alpha};
  const ModelFit fit{fullModelFit, reducedRSquared};
  const SizeRange range{static_cast<double>(sampleSizeFrom), static_cast<double>(sampleSizeTo)};
  if (RejectsModel(model)) return EmptySurface();
  if (RejectsSampleSize(model, sampleSize)) return EmptySurface();
  if (range.IsRejected(model)) return EmptySurface();
  if (fit.IsRejected()) return EmptySurface();
  return SurfaceOfSizesAndEffects(model, SurfaceSizes(model, range, sampleSize, fit.Effect()),
                                  CorrelationSurfaceAxis(IsCoarse(model) ? kRandomStep : step), EffectAtCorrelation);
}

extern "C" XYZPlot PlotNaESmlr(double sampleSize, double predictors, double testedPredictors, double effectSize,
                               int randomPredictors, std::uint8_t includeIntercept, double alpha, int sampleSizeFrom,
                               int sampleSizeTo, double step) {
  const RegressionModel model{predictors, testedPredictors, randomPredictors, includeIntercept, alpha};
  const SizeRange range{static_cast<double>(sampleSizeFrom), static_cast<double>(sampleSizeTo)};
  if (RejectsModel(model)) return EmptySurface();
  if (RejectsSampleSize(model, sampleSize)) return EmptySurface();
  if (range.IsRejected(model)) return EmptySurface();
  const auto effect = RegressionEffect::OfFSquared(effectSize);
  return SurfaceOfSizesAndEffects(model, SurfaceSizes(model, range, sampleSize, effect),
                                  FSquaredAxis(IsCoarse(model) ? kRandomStep : step), EffectAtFSquared);
}
