#include <cmath>

#include "correlation/pearson.h"
#include "exports/correlation/tests.h"
#include "exports/sentinels.h"
#include "exports/stop.h"
#include "kelpower.h"

using namespace kelpower;
using namespace kelpower::correlation;
using namespace kelpower::exports;

extern "C" double PowerbyOneSampPartial(double sampleSize, double partialledOut, double alternativeCorrelation,
                                        double nullCorrelation, int oneSided, double alpha) {
  return PartialTestOf(partialledOut, oneSided, alpha).Power(sampleSize, alternativeCorrelation, nullCorrelation);
}

extern "C" double PowerReversebyOneSampPartial(double power, double partialledOut, double alternativeCorrelation,
                                               double nullCorrelation, int oneSided, double alpha) {
  const PearsonExport test = PartialTestOf(partialledOut, oneSided, alpha);
  return SizeForPower(test, alternativeCorrelation, nullCorrelation, PartialBracket(partialledOut), power, nullptr);
}

extern "C" double HalfCIOneSampPartial(double sampleSize, double partialledOut, double correlation, double alpha) {
  return HalfWidth(PearsonInterval{Confidence(alpha), correlation, partialledOut, false}, sampleSize);
}

extern "C" double PowerReversebyHalfCIOneSampPartial(double halfWidth, double partialledOut, double correlation,
                                                     double alpha, StopRequest* stop) {
  const CallerStop caller(stop);
  const PearsonInterval interval{Confidence(alpha), correlation, partialledOut, false};
  const auto halfWidthAt = [&](double size) { return HalfWidth(interval, size); };
  const Bracket bracket{partialledOut + 4, partialledOut + 404};
  return std::ceil(OrMissing(SizeForHalfWidth(halfWidthAt, bracket, halfWidth, caller.View())));
}
