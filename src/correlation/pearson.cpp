#include <cmath>

#include "correlation/correlation.h"
#include "frame/checks.h"
#include "kelpower.h"

using namespace kelpower;

namespace {

/// What the expansions of the mean and the variance of z in u = 1 / m, m = N - 1 - k, add to the first order.
struct SecondOrder {
  double shift;     ///< added to the difference of z
  double variance;  ///< factor of 1 / m

  SecondOrder(double m, double alternative, double null);
};

// Only the first order of the null correlation is subtracted from the bias; that is intended.
SecondOrder::SecondOrder(double m, double alternative, double null) {
  const double u = 1 / m;  // powers of m would overflow
  const double squared = alternative * alternative;
  const double fourth = squared * squared;
  const double series = 1 + (squared + 5) / 4 * u + (3 * fourth + 2 * squared + 11) / 8 * u * u;
  shift = (alternative * series - null) / 2 * u;
  variance = 1 + (4 - squared) / 2 * u + (22 - 6 * squared - 3 * fourth) / 6 * u * u;
}

/// The correction of the interval's centre for bias, of the first order only.
double IntervalBias(double sampleSize, double correlation) { return correlation / 2 / (sampleSize - 1); }

double HalfWidth(double sampleSize, double partialledOut, double correlation, bool isCorrected, double quantile) {
  const double bias = isCorrected ? IntervalBias(sampleSize, correlation) : 0;
  return BackTransformedHalfWidth(std::atanh(correlation) - bias,
                                  quantile * std::sqrt(1 / (sampleSize - 3 - partialledOut)));
}

/// The power functions apply the correction where the byte is 1, the searches where it is not 0; that is intended.
bool IsExactlyOne(std::uint8_t adjustBias) { return adjustBias == 1; }

}  // namespace

double PearsonTest::Power(double sampleSize, double alternative, double null) const {
  if (sampleSize <= PartialledOut() + 3) return -1;
  if (PartialledOut() < 0) return -1;
  if (RejectsCorrelation(alternative)) return -1;
  if (RejectsCorrelation(null)) return -1;
  if (RejectsOpenUnit(Level().alpha)) return -1;

  double difference = FisherDifference(alternative, null);
  const double information = sampleSize - 3 - PartialledOut();
  double spread = 1;
  if (isCorrected_) {
    const double m = sampleSize - 1 - PartialledOut();
    const SecondOrder correction(m, alternative, null);
    difference += correction.shift;
    spread = std::sqrt(correction.variance * (information / m));
  }
  return Level().Power(difference * std::sqrt(information), spread, alternative > null);
}

extern "C" double PowerbyOneSampPearson(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                        int oneSided, std::uint8_t adjustBias, double alpha) {
  const PearsonTest test({alpha, oneSided}, 0, IsExactlyOne(adjustBias));
  return test.Power(sampleSize, alternativeCorrelation, nullCorrelation);
}

extern "C" double PowerReversebyOneSampPearson(double power, double alternativeCorrelation, double nullCorrelation,
                                               int oneSided, std::uint8_t adjustBias, double alpha, StopRequest* stop) {
  const PearsonTest test({alpha, oneSided}, 0, adjustBias != 0);
  return SizeForPower(power, test, alternativeCorrelation, nullCorrelation, 4, 400, stop);
}

extern "C" double HalfCIOneSampPearson(double sampleSize, double correlation, std::uint8_t adjustBias, double alpha) {
  return HalfWidth(sampleSize, 0, correlation, IsExactlyOne(adjustBias), IntervalQuantile(alpha));
}

extern "C" double PowerReversebyHalfCIOneSampPearson(double halfWidth, double correlation, std::uint8_t adjustBias,
                                                     double alpha, StopRequest* stop) {
  const double quantile = IntervalQuantile(alpha);
  return SizeForInterval(
      halfWidth, [&](double n) { return HalfWidth(n, 0, correlation, adjustBias != 0, quantile); }, 4, 400, stop);
}

extern "C" double PowerbyOneSampPartial(double sampleSize, double partialledOut, double alternativeCorrelation,
                                        double nullCorrelation, int oneSided, double alpha) {
  const PearsonTest test = PartialTest(partialledOut, oneSided, alpha);
  return test.Power(sampleSize, alternativeCorrelation, nullCorrelation);
}

extern "C" double PowerReversebyOneSampPartial(double power, double partialledOut, double alternativeCorrelation,
                                               double nullCorrelation, int oneSided, double alpha) {
  const PearsonTest test = PartialTest(partialledOut, oneSided, alpha);
  // At its lower end the test does not exist yet, so the objective is negative there.
  return SizeForPower(power, test, alternativeCorrelation, nullCorrelation, partialledOut + 3, partialledOut + 400,
                      nullptr);
}

// Intervals of partial correlations are not corrected for bias, unlike their tests; that is intended.
extern "C" double HalfCIOneSampPartial(double sampleSize, double partialledOut, double correlation, double alpha) {
  return HalfWidth(sampleSize, partialledOut, correlation, false, IntervalQuantile(alpha));
}

extern "C" double PowerReversebyHalfCIOneSampPartial(double halfWidth, double partialledOut, double correlation,
                                                     double alpha, StopRequest* stop) {
  const double quantile = IntervalQuantile(alpha);
  return SizeForInterval(
      halfWidth, [&](double n) { return HalfWidth(n, partialledOut, correlation, false, quantile); }, partialledOut + 4,
      partialledOut + 404, stop);
}
