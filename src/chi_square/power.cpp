#include "chi_square/power.h"

#include <cmath>

#include "frame/checks.h"
#include "kelcommon/distributions.h"
#include "kelcommon/kel_mv.h"

namespace kelpower::chi_square {

using KelCommon::KelMV;

std::optional<ChiSquareTest> ChiSquareTest::Checked(double df, double alpha) {
  if (df < 1) return std::nullopt;
  if (std::isinf(df)) return std::nullopt;
  if (RejectsAlpha(alpha)) return std::nullopt;
  return ChiSquareTest(df, alpha);
}

ChiSquareTest::ChiSquareTest(double df, double alpha) : df_(df), critical_(kelcommon::IsfChiSquare(alpha, df)) {}

Answer ChiSquareTest::Power(double noncentrality) const {
  if (noncentrality < 0) return NoValue::Refused;
  return kelcommon::NonCentralSfChiSquare(critical_, df_, noncentrality);
}

Answer ChiSquareTest::NoncentralityFor(double power) const {
  const double noncentrality = kelcommon::NonCentralityChiSquare(power, critical_, df_);
  if (KelMV::IsMissing(noncentrality)) return NoValue::NotReached;
  if (std::isinf(noncentrality)) return NoValue::NotReached;
  return noncentrality;
}

Answer Power(double df, double alpha, double effect, double n) {
  if (n <= 0) return NoValue::Refused;
  const auto test = ChiSquareTest::Checked(df, alpha);
  if (!test) return NoValue::Refused;
  return test->Power(n * effect);
}

Answer SizeForPower(double df, double alpha, double effect, double power) {
  const auto test = ChiSquareTest::Checked(df, alpha);
  if (!test) return NoValue::Refused;
  if (effect < 0) return NoValue::Refused;
  if (effect == 0) return NoValue::NotReached;
  const Answer noncentrality = test->NoncentralityFor(power);
  return noncentrality ? Answer(*noncentrality / effect) : noncentrality;
}

}  // namespace kelpower::chi_square
