#include "correlation/pearson.h"

#include <cmath>

namespace kelpower::correlation {

namespace {

/// What the expansions of the mean and the variance of z in u = 1 / m, m = N - 1 - k, add to the first order.
struct SecondOrder {
  double shift;     ///< added to the difference of z
  double variance;  ///< factor of 1 / m

  SecondOrder(double m, const Hypotheses& hypotheses);
};

// Only the first order of the null correlation is subtracted from the bias; that is intended.
SecondOrder::SecondOrder(double m, const Hypotheses& hypotheses) {
  const double u = 1 / m;  // powers of m would overflow
  const auto& [alternative, null] = hypotheses;
  const double squared = alternative * alternative;
  const double fourth = squared * squared;
  const double series = 1 + (squared + 5) / 4 * u + (3 * fourth + 2 * squared + 11) / 8 * u * u;
  shift = (alternative * series - null) / 2 * u;
  variance = 1 + (4 - squared) / 2 * u + (22 - 6 * squared - 3 * fourth) / 6 * u * u;
}

/// The correction of the interval's centre for bias, of the first order only.
double IntervalBias(double size, double correlation) { return correlation / 2 / (size - 1); }

}  // namespace

ShiftedNormal UnderAlternative(const PearsonTest& test, double size, const Hypotheses& hypotheses) {
  double difference = FisherDifference(hypotheses);
  const double information = size - 3 - test.partialledOut;
  double spread = 1;
  if (test.isCorrected) {
    const double m = size - 1 - test.partialledOut;
    const SecondOrder correction(m, hypotheses);
    difference += correction.shift;
    spread = std::sqrt(correction.variance * (information / m));
  }
  return {difference * std::sqrt(information), spread};
}

Answer Power(const PearsonTest& test, double size, const Hypotheses& hypotheses) {
  if (size <= test.partialledOut + 3) return NoValue::Refused;
  if (test.partialledOut < 0) return NoValue::Refused;
  if (Rejects(hypotheses, test.level)) return NoValue::Refused;
  const auto [shift, spread] = UnderAlternative(test, size, hypotheses);
  return test.level.Power(shift, spread, hypotheses.alternative > hypotheses.null);
}

Answer SizeForPower(const PearsonTest& test, const Hypotheses& hypotheses, double power, Stop stop) {
  const Bracket bracket = test.partialledOut == 0 ? usualBracket : PartialBracket(test.partialledOut);
  const auto powerAt = [&](double size) { return Power(test, size, hypotheses).ValueOr(belowEveryPower); };
  return SizeForPower(powerAt, test.NeverFalls(), bracket, power, stop);
}

double HalfWidth(const PearsonInterval& interval, double size) {
  const double bias = interval.isCorrected ? IntervalBias(size, interval.correlation) : 0;
  return BackTransformedHalfWidth(std::atanh(interval.correlation) - bias,
                                  interval.confidence.quantile * std::sqrt(1 / (size - 3 - interval.partialledOut)));
}

Answer SizeForHalfWidth(const PearsonInterval& interval, double halfWidth, Stop stop) {
  const Bracket bracket{interval.partialledOut + usualBracket.lower,
                        interval.partialledOut == 0 ? usualBracket.upper : interval.partialledOut + 404};
  const auto halfWidthAt = [&](double size) { return HalfWidth(interval, size); };
  return SizeForHalfWidth(halfWidthAt, bracket, halfWidth, stop);
}

}  // namespace kelpower::correlation
