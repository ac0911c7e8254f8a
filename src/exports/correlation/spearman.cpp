#include "correlation/spearman.h"

#include <cmath>

#include "exports/correlation/tests.h"
#include "exports/sentinels.h"
#include "exports/stop.h"
#include "kelpower.h"

using namespace kelpower;
using namespace kelpower::correlation;
using namespace kelpower::exports;

namespace {

/// An unknown method counts as having no standard error, which is intended: the half-width is 0 for every correlation.
double HalfWidthOf(double sampleSize, double correlation, int varianceMethod, Confidence confidence) {
  const auto variance = RankVarianceOf(varianceMethod);
  if (!variance) return BackTransformedHalfWidth(std::atanh(correlation), confidence.quantile * 0);
  return HalfWidth(SpearmanInterval{confidence, correlation, *variance}, sampleSize);
}

}  // namespace

extern "C" double PowerbyOneSampSpearman(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                         int varianceMethod, int oneSided, double alpha) {
  return SpearmanExport(varianceMethod, oneSided, alpha).Power(sampleSize, alternativeCorrelation, nullCorrelation);
}

extern "C" double PowerReversebyOneSampSpearman(double power, double alternativeCorrelation, double nullCorrelation,
                                                int varianceMethod, int oneSided, double alpha) {
  const SpearmanExport test(varianceMethod, oneSided, alpha);
  const auto variance = RankVarianceOf(varianceMethod);
  const Bracket bracket = variance ? PowerBracket(*variance) : usualBracket;
  return SizeForPower(test, alternativeCorrelation, nullCorrelation, bracket, power, nullptr);
}

extern "C" double HalfCIOneSampSpearman(double sampleSize, double correlation, int varianceMethod, double alpha) {
  return HalfWidthOf(sampleSize, correlation, varianceMethod, Confidence(alpha));
}

// Starts at 4 cases for every method, unlike the search for a power; that is intended.
extern "C" double PowerReversebyHalfCIOneSampSpearman(double halfWidth, double correlation, int varianceMethod,
                                                      double alpha, StopRequest* stop) {
  const CallerStop caller(stop);
  const Confidence confidence(alpha);
  const auto halfWidthAt = [&](double n) { return HalfWidthOf(n, correlation, varianceMethod, confidence); };
  return std::ceil(OrMissing(SizeForHalfWidth(halfWidthAt, usualBracket, halfWidth, caller.View())));
}
