#include "exports/means/paired.h"

#include <cmath>

#include "exports/sentinels.h"
#include "frame/checks.h"
#include "frame/function_view.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"
#include "means/one_sample.h"
#include "means/paired.h"

using namespace kelpower;
using namespace kelpower::means;
using namespace kelpower::exports;
using KelCommon::KelMV;

namespace kelpower::exports {

namespace {

/// The two-sided test accepts a correlation of exactly 1, the one-sided one does not; that is intended.
bool RejectsHighCorrelation(Sides sides, double correlation) {
  return sides == Sides::Two ? correlation > 1 : correlation >= 1;
}

/// The effect size of the differences, mean over standard deviation. A `sd2` of 0 says that `sd1` is already the
/// standard deviation of the differences.
double EffectSizeOfDifferences(const PairedDesign& design) {
  const double meanDifference = design.mean1 - design.mean2;
  if (design.sd2 == 0) return meanDifference / design.sd1;
  const auto variance = DifferenceVariance::Of({design.sd1, design.sd2, design.correlation});
  return meanDifference / variance.StandardDeviation();
}

}  // namespace

bool RejectsDesign(const PairedDesign& design) {
  if (design.correlation < -1) return true;
  if (design.correlation == 0) return true;  // refused on purpose: samples without correlation are not paired
  if (RejectsStandardDeviation(design.sd1)) return true;
  if (design.sd2 < 0) return true;
  return design.sd1 == design.sd2 && std::fabs(design.correlation) == 1;
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

}  // namespace kelpower::exports

extern "C" double EffectSizeRelated(double mean1, double sd1, double mean2, double sd2, double correlation) {
  return EffectSizeOfDifferences({mean1, sd1, mean2, sd2, correlation});
}

extern "C" double PowerRelatedNondirectionalES(double sampleSize, double effectSize, double alpha) {
  return OrMissing(Power({effectSize, Sides::Two, alpha}, sampleSize));
}

extern "C" double PowerRelatedNondirectional(double sampleSize, double mean1, double sd1, double mean2, double sd2,
                                             double correlation, double alpha) {
  return ForAcceptedEffectSize(Sides::Two, {mean1, sd1, mean2, sd2, correlation}, alpha, [=](double effectSize) {
    return PowerRelatedNondirectionalES(sampleSize, effectSize, alpha);
  });
}

extern "C" double PowerRelatedDirectionalES(double sampleSize, double effectSize, double alpha) {
  return OrMissing(Power({effectSize, Sides::One, alpha}, sampleSize));
}

extern "C" double PowerRelatedDirectional(double sampleSize, double mean1, double sd1, double mean2, double sd2,
                                          double correlation, double alpha) {
  return ForAcceptedEffectSize(Sides::One, {mean1, sd1, mean2, sd2, correlation}, alpha, [=](double effectSize) {
    return PowerRelatedDirectionalES(sampleSize, effectSize, alpha);
  });
}

extern "C" double PowerReverseRelatedNondirectionalES(double power, double effectSize, double alpha) {
  return OrMissing(SizeForPower({effectSize, Sides::Two, alpha}, power));
}

extern "C" double PowerReverseRelatedNondirectional(double power, double mean1, double sd1, double mean2, double sd2,
                                                    double correlation, double alpha) {
  return ForAcceptedEffectSize(Sides::Two, {mean1, sd1, mean2, sd2, correlation}, alpha, [=](double effectSize) {
    return PowerReverseRelatedNondirectionalES(power, effectSize, alpha);
  });
}

extern "C" double PowerReverseRelatedDirectionalES(double power, double effectSize, double alpha) {
  return OrMissing(SizeForPower({effectSize, Sides::One, alpha}, power));
}

extern "C" double PowerReverseRelatedDirectional(double power, double mean1, double sd1, double mean2, double sd2,
                                                 double correlation, double alpha) {
  return ForAcceptedEffectSize(Sides::One, {mean1, sd1, mean2, sd2, correlation}, alpha, [=](double effectSize) {
    return PowerReverseRelatedDirectionalES(power, effectSize, alpha);
  });
}

extern "C" double HalfCIRelatedMeans(double sampleSize, double sd1, double sd2, double correlation, double alpha) {
  return HalfWidth(PairedInterval{{sd1, sd2, correlation}, alpha}, sampleSize);
}

extern "C" double PowerReversebyHalfCIRelatedMeans(double halfWidth, double sd1, double sd2, double correlation,
                                                   double alpha) {
  return std::ceil(OrMissing(SizeForHalfWidth(PairedInterval{{sd1, sd2, correlation}, alpha}, halfWidth)));
}
