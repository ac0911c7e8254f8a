#include "means/one_sample.h"

#include <cmath>

#include "exports/sentinels.h"
#include "frame/checks.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"

using namespace kelpower;
using namespace kelpower::means;
using namespace kelpower::exports;
using KelCommon::KelMV;

extern "C" double EffectSizeOneSample(double mean, double sd, double testValue) {
  if (sd == 0) return KelMV::Missing();
  return (mean - testValue) / sd;
}

// Neither this function nor its search checks the level, which is intended.
extern "C" double PowerOneSampleNondirectionalES(double sampleSize, double effectSize, double alpha) {
  if (sampleSize <= 1) return KelMV::Missing();
  return OneSampleTest(Sides::Two, sampleSize, alpha).Power(effectSize);
}

extern "C" double PowerOneSampleNondirectional(double sampleSize, double mean, double sd, double testValue,
                                               double alpha) {
  if (RejectsStandardDeviation(sd)) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();
  return PowerOneSampleNondirectionalES(sampleSize, (mean - testValue) / sd, alpha);
}

extern "C" double PowerOneSampleDirectionalES(double sampleSize, double effectSize, double alpha) {
  return OrMissing(Power({effectSize, Sides::One, alpha}, sampleSize));
}

extern "C" double PowerOneSampleDirectional(double sampleSize, double mean, double sd, double testValue, double alpha) {
  if (RejectsStandardDeviation(sd)) return KelMV::Missing();
  return PowerOneSampleDirectionalES(sampleSize, (mean - testValue) / sd, alpha);
}

extern "C" double PowerReverseOneSampleNondirectionalES(double power, double effectSize, double alpha) {
  return OrMissing(
      SizeForPower([=](double n) { return OneSampleTest(Sides::Two, n, alpha).Power(effectSize); }, power));
}

extern "C" double PowerReverseOneSampleNondirectional(double power, double mean, double sd, double testValue,
                                                      double alpha) {
  if (RejectsStandardDeviation(sd)) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();
  return PowerReverseOneSampleNondirectionalES(power, (mean - testValue) / sd, alpha);
}

extern "C" double PowerReverseOneSampleDirectionalES(double power, double effectSize, double alpha) {
  return OrMissing(SizeForPower({effectSize, Sides::One, alpha}, power));
}

extern "C" double PowerReverseOneSampleDirectional(double power, double mean, double sd, double testValue,
                                                   double alpha) {
  if (RejectsStandardDeviation(sd)) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();
  return PowerReverseOneSampleDirectionalES(power, (mean - testValue) / sd, alpha);
}

extern "C" double HalfCIOneSampleMeans(double sampleSize, double sd, double alpha) {
  return HalfWidth(MeanInterval{sd, alpha}, sampleSize);
}

extern "C" double PowerReversebyHalfCIOneSampleMeans(double halfWidth, double sd, double alpha) {
  return std::ceil(OrMissing(SizeForHalfWidth(MeanInterval{sd, alpha}, halfWidth)));
}
