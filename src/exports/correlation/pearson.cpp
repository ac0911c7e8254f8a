#include "correlation/pearson.h"

#include <cmath>

#include "exports/correlation/tests.h"
#include "exports/sentinels.h"
#include "exports/stop.h"
#include "kelpower.h"

using namespace kelpower;
using namespace kelpower::correlation;
using namespace kelpower::exports;

// The functions that take a size apply the correction where the byte is 1, the searches where it is not 0; that is
// intended.

extern "C" double PowerbyOneSampPearson(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                        int oneSided, std::uint8_t adjustBias, double alpha) {
  return PearsonTestOf(oneSided, adjustBias == 1, alpha).Power(sampleSize, alternativeCorrelation, nullCorrelation);
}

extern "C" double PowerReversebyOneSampPearson(double power, double alternativeCorrelation, double nullCorrelation,
                                               int oneSided, std::uint8_t adjustBias, double alpha, StopRequest* stop) {
  const PearsonExport test = PearsonTestOf(oneSided, adjustBias != 0, alpha);
  return SizeForPower(test, alternativeCorrelation, nullCorrelation, usualBracket, power, stop);
}

extern "C" double HalfCIOneSampPearson(double sampleSize, double correlation, std::uint8_t adjustBias, double alpha) {
  return HalfWidth(PearsonInterval{Confidence(alpha), correlation, 0, adjustBias == 1}, sampleSize);
}

extern "C" double PowerReversebyHalfCIOneSampPearson(double halfWidth, double correlation, std::uint8_t adjustBias,
                                                     double alpha, StopRequest* stop) {
  const CallerStop caller(stop);
  const PearsonInterval interval{Confidence(alpha), correlation, 0, adjustBias != 0};
  return std::ceil(OrMissing(SizeForHalfWidth(interval, halfWidth, caller.View())));
}
