#include "correlation/spearman.h"

#include <cmath>
#include <limits>

namespace kelpower::correlation {

namespace {

/// One over the standard error of Fisher's z. `absoluteZ` is |z| of rho.
double Precision(RankVariance variance, double size, double rho, double absoluteZ) {
  switch (variance) {
    case RankVariance::BonettWright: return std::sqrt((size - 3) / (1 + rho * rho / 2));
    case RankVariance::FiellerHartleyPearson: return std::sqrt((size - 3) / 1.06);
    case RankVariance::CarusoCliff: break;
  }
  if (size == 0 && absoluteZ > 0) return 0;  // the first term of the variance is infinite
  const double root = std::sqrt(size);
  return root / std::sqrt(absoluteZ / (6 + 4 / root) + size / (size - 2));
}

}  // namespace

double StandardError(RankVariance variance, double size, double rho, double absoluteZ) {
  return 1 / Precision(variance, size, rho, absoluteZ);
}

ShiftedNormal UnderAlternative(const SpearmanTest& test, double size, const Hypotheses& hypotheses) {
  const double alternative = hypotheses.alternative;
  const bool isExtreme = alternative == 1 || alternative == -1;
  const double absoluteZ = isExtreme ? std::numeric_limits<double>::max() : std::fabs(std::atanh(alternative));
  const double precision = Precision(test.variance, size, alternative, absoluteZ);
  return {FisherDifference(hypotheses) * precision, 1};
}

Answer Power(const SpearmanTest& test, double size, const Hypotheses& hypotheses) {
  if (size < 3) return NoValue::Refused;
  if (size == 3 && test.variance != RankVariance::CarusoCliff) return NoValue::Refused;
  if (Rejects(hypotheses, test.level)) return NoValue::Refused;
  const auto [shift, spread] = UnderAlternative(test, size, hypotheses);
  return test.level.Power(shift, spread, hypotheses.alternative > hypotheses.null);
}

Bracket PowerBracket(RankVariance variance) {
  if (variance == RankVariance::CarusoCliff) return {3, usualBracket.upper};
  return usualBracket;
}

Answer SizeForPower(const SpearmanTest& test, const Hypotheses& hypotheses, double power, Stop stop) {
  const auto powerAt = [&](double size) { return Power(test, size, hypotheses).ValueOr(belowEveryPower); };
  return SizeForPower(powerAt, /*neverFalls=*/true, PowerBracket(test.variance), power, stop);
}

double HalfWidth(const SpearmanInterval& interval, double size) {
  const double z = std::atanh(interval.correlation);
  const double precision = Precision(interval.variance, size, interval.correlation, std::fabs(z));
  return BackTransformedHalfWidth(z, interval.confidence.quantile / precision);
}

Answer SizeForHalfWidth(const SpearmanInterval& interval, double halfWidth, Stop stop) {
  const auto halfWidthAt = [&](double size) { return HalfWidth(interval, size); };
  return SizeForHalfWidth(halfWidthAt, usualBracket, halfWidth, stop);
}

}  // namespace kelpower::correlation
