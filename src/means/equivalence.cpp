#include "means/equivalence.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "kelcommon/chi_integral.h"
#include "kelcommon/kel_dist_fun.h"
#include "means/margins.h"

namespace kelpower::means {

namespace {

/// P(low < Z < high), from the tails on the nearer side, so that small probabilities keep their digits.
double NormalBetween(double low, double high) {
  using KelMath::KelDistFun;
  if (!(low < high)) return 0;
  return low > 0 ? KelDistFun::CdfStdNorm(-low) - KelDistFun::CdfStdNorm(-high)
                 : KelDistFun::CdfStdNorm(high) - KelDistFun::CdfStdNorm(low);
}

}  // namespace

double PowerOfTwoTests(const TTest& test, const Insides& inStandardErrors) {
  const double aboveLower = inStandardErrors.aboveLower;
  const double belowUpper = inStandardErrors.belowUpper;
  if (std::min(aboveLower, belowUpper) == -std::numeric_limits<double>::infinity()) return 0;
  const double t = test.critical;
  const auto chance = [&](double u) { return NormalBetween(t * u - aboveLower, belowUpper - t * u); };
  kelcommon::ChiRange range;
  if (t > 0) range.limit = (aboveLower + belowUpper) / (2 * t);
  const double breaks[] = {aboveLower / t, belowUpper / t};
  range.breaks = breaks;
  range.breakCount = 2;
  if (range.limit <= 0) return 0;
  return std::min(1.0, kelcommon::MeanOverChi(chance, test.df, range));  // a rounding may lead above
}

Answer PowerBetweenLimits(const Insides& distances, double alpha, const DifferenceDistribution& estimate) {
  const std::optional<TTest> test = OneSidedTest(alpha, estimate);
  if (!test) return NoValue::Refused;
  const Insides inStandardErrors{distances.aboveLower / estimate.standardError,
                                 distances.belowUpper / estimate.standardError};
  if (std::isnan(inStandardErrors.aboveLower) || std::isnan(inStandardErrors.belowUpper)) return NoValue::Refused;
  return PowerOfTwoTests(*test, inStandardErrors);
}

}  // namespace kelpower::means
