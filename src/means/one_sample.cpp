#include "means/one_sample.h"

#include "frame/checks.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"

// One-sample t test of a mean: under the alternative, t is noncentral t on n - 1 degrees of freedom with noncentrality
// sqrt(n) d, where d = (mean - test value) / sd (Cohen 1988, "Statistical Power Analysis for the Behavioral Sciences",
// chapter 2; Johnson, Kotz and Balakrishnan 1995, "Continuous Univariate Distributions", volume 2, chapter 31).

namespace kelpower {

using KelCommon::KelMV;

double DirectionalPower(double sampleSize, double effectSize, double alpha) {
  if (sampleSize <= 1) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();
  return OneSampleTest(Sides::One, sampleSize, alpha).Power(effectSize);
}

double DirectionalSize(double power, double effectSize, double alpha) {
  return SizeForPower([=](double n) { return DirectionalPower(n, effectSize, alpha); }, power);
}

}  // namespace kelpower

using namespace kelpower;

extern "C" double EffectSizeOneSample(double mean, double sd, double testValue) {
  if (sd == 0) return KelMV::Missing();
  return (mean - testValue) / sd;
}

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
  return DirectionalPower(sampleSize, effectSize, alpha);
}

extern "C" double PowerOneSampleDirectional(double sampleSize, double mean, double sd, double testValue, double alpha) {
  if (RejectsStandardDeviation(sd)) return KelMV::Missing();
  return DirectionalPower(sampleSize, (mean - testValue) / sd, alpha);
}

extern "C" double PowerReverseOneSampleNondirectionalES(double power, double effectSize, double alpha) {
  return SizeForPower([=](double n) { return OneSampleTest(Sides::Two, n, alpha).Power(effectSize); }, power);
}

extern "C" double PowerReverseOneSampleNondirectional(double power, double mean, double sd, double testValue,
                                                      double alpha) {
  if (RejectsStandardDeviation(sd)) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();
  return PowerReverseOneSampleNondirectionalES(power, (mean - testValue) / sd, alpha);
}

extern "C" double PowerReverseOneSampleDirectionalES(double power, double effectSize, double alpha) {
  return DirectionalSize(power, effectSize, alpha);
}

extern "C" double PowerReverseOneSampleDirectional(double power, double mean, double sd, double testValue,
                                                   double alpha) {
  if (RejectsStandardDeviation(sd)) return KelMV::Missing();
  if (RejectsAlpha(alpha)) return KelMV::Missing();
  return DirectionalSize(power, (mean - testValue) / sd, alpha);
}

extern "C" double HalfCIOneSampleMeans(double sampleSize, double sd, double alpha) {
  return IntervalQuantileT(alpha, sampleSize - 1) * (sd / std::sqrt(sampleSize));
}

// Solves w = t sd / sqrt(n), squared and multiplied by n / sd^2.
extern "C" double PowerReversebyHalfCIOneSampleMeans(double halfWidth, double sd, double alpha) {
  const double relativeWidth = halfWidth / sd;
  return std::ceil(SizeForHalfWidth({relativeWidth * relativeWidth, 1, alpha, [](double n) { return n - 1; }}));
}
