#include "means/paired.h"

#include <algorithm>

#include "frame/checks.h"
#include "frame/function_view.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"
#include "means/one_sample.h"

// Paired-samples t test: the one-sample test of the differences (Cohen 1988, section 2.3.5).

namespace kelpower {

using KelCommon::KelMV;

namespace {

/// The variance of the differences is scale^2 * relative.
struct DifferenceVariance {
  double scale;
  double relative;

  double StandardDeviation() const { return scale * std::sqrt(relative); }
};

// sd1^2 + sd2^2 - 2 correlation sd1 sd2, as (sd1 - sd2)^2 + 2 (1 - correlation) sd1 sd2: the plain sum cancels when the
// measurements agree closely (sd1 = 4, sd2 = 4.0000001, correlation 1), and squares of unscaled terms can overflow.
DifferenceVariance VarianceOfDifferences(double sd1, double sd2, double correlation) {
  const double scale = BinaryScale(std::max(std::fabs(sd1), std::fabs(sd2)));
  const double u = sd1 / scale;
  const double v = sd2 / scale;
  return {scale, (u - v) * (u - v) + 2 * (1 - correlation) * u * v};
}

/// The two-sided test accepts a correlation of exactly 1, the one-sided one does not; that is intended.
bool RejectsHighCorrelation(Sides sides, double correlation) {
  return sides == Sides::Two ? correlation > 1 : correlation >= 1;
}

}  // namespace

bool RejectsDesign(const PairedDesign& design) {
  if (design.correlation < -1) return true;
  if (design.correlation == 0) return true;  // refused on purpose: samples without correlation are not paired
  if (RejectsStandardDeviation(design.sd1)) return true;
  if (design.sd2 < 0) return true;
  return design.sd1 == design.sd2 && std::fabs(design.correlation) == 1;
}

double EffectSizeOfDifferences(const PairedDesign& design) {
  const double meanDifference = design.mean1 - design.mean2;
  if (design.sd2 == 0) return meanDifference / design.sd1;
  return meanDifference / VarianceOfDifferences(design.sd1, design.sd2, design.correlation).StandardDeviation();
}

std::optional<double> AcceptedEffectSize(Sides sides, const PairedDesign& design, double alpha) {
  if (RejectsHighCorrelation(sides, design.correlation)) return std::nullopt;
  if (RejectsDesign(design)) return std::nullopt;
  if (RejectsAlpha(alpha)) return std::nullopt;
  return EffectSizeOfDifferences(design);
}

namespace {

/// What `answer` makes of the effect size of a design; missing where it refuses its input.
double ForAcceptedEffectSize(Sides sides, const PairedDesign& design, double alpha,
                             FunctionView<double(double effectSize)> answer) {
  const std::optional<double> effectSize = AcceptedEffectSize(sides, design, alpha);
  return effectSize ? answer(*effectSize) : KelMV::Missing();
}

}  // namespace

}  // namespace kelpower

using namespace kelpower;

extern "C" double EffectSizeRelated(double mean1, double sd1, double mean2, double sd2, double correlation) {
  return EffectSizeOfDifferences({mean1, sd1, mean2, sd2, correlation});
}

extern "C" double PowerRelatedNondirectionalES(double sampleSize, double effectSize, double alpha) {
  if (sampleSize <= 1) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();
  return OneSampleTest(Sides::Two, sampleSize, alpha).Power(effectSize);
}

extern "C" double PowerRelatedNondirectional(double sampleSize, double mean1, double sd1, double mean2, double sd2,
                                             double correlation, double alpha) {
  return ForAcceptedEffectSize(Sides::Two, {mean1, sd1, mean2, sd2, correlation}, alpha, [=](double effectSize) {
    return PowerRelatedNondirectionalES(sampleSize, effectSize, alpha);
  });
}

extern "C" double PowerRelatedDirectionalES(double sampleSize, double effectSize, double alpha) {
  return DirectionalPower(sampleSize, effectSize, alpha);
}

extern "C" double PowerRelatedDirectional(double sampleSize, double mean1, double sd1, double mean2, double sd2,
                                          double correlation, double alpha) {
  return ForAcceptedEffectSize(Sides::One, {mean1, sd1, mean2, sd2, correlation}, alpha,
                               [=](double effectSize) { return DirectionalPower(sampleSize, effectSize, alpha); });
}

extern "C" double PowerReverseRelatedNondirectionalES(double power, double effectSize, double alpha) {
  return SizeForPower([=](double n) { return PowerRelatedNondirectionalES(n, effectSize, alpha); }, power);
}

extern "C" double PowerReverseRelatedNondirectional(double power, double mean1, double sd1, double mean2, double sd2,
                                                    double correlation, double alpha) {
  return ForAcceptedEffectSize(Sides::Two, {mean1, sd1, mean2, sd2, correlation}, alpha, [=](double effectSize) {
    return PowerReverseRelatedNondirectionalES(power, effectSize, alpha);
  });
}

extern "C" double PowerReverseRelatedDirectionalES(double power, double effectSize, double alpha) {
  return DirectionalSize(power, effectSize, alpha);
}

extern "C" double PowerReverseRelatedDirectional(double power, double mean1, double sd1, double mean2, double sd2,
                                                 double correlation, double alpha) {
  return ForAcceptedEffectSize(Sides::One, {mean1, sd1, mean2, sd2, correlation}, alpha,
                               [=](double effectSize) { return DirectionalSize(power, effectSize, alpha); });
}

extern "C" double HalfCIRelatedMeans(double sampleSize, double sd1, double sd2, double correlation, double alpha) {
  const double sd = VarianceOfDifferences(sd1, sd2, correlation).StandardDeviation();
  return IntervalQuantileT(alpha, sampleSize - 1) * (sd / std::sqrt(sampleSize));
}

// As for one sample. The variance is divided by and not its root, so that a negative one (a correlation beyond 1) has
// no size that reaches the half-width.
extern "C" double PowerReversebyHalfCIRelatedMeans(double halfWidth, double sd1, double sd2, double correlation,
                                                   double alpha) {
  const DifferenceVariance variance = VarianceOfDifferences(sd1, sd2, correlation);
  const double relativeWidth = halfWidth / variance.scale;
  const double squaredWidth = relativeWidth * relativeWidth / variance.relative;
  return std::ceil(SizeForHalfWidth({squaredWidth, 1, alpha, [](double n) { return n - 1; }}));
}
