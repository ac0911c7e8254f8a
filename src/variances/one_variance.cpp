#include "variances/one_variance.h"

#include <cmath>

#include "frame/checks.h"
#include "kelcommon/distributions.h"

namespace kelpower::variances {

std::optional<VarianceTest> VarianceTest::Checked(double n, double alpha, bool isOneSided) {
  if (n < 2) return std::nullopt;
  if (std::isinf(n)) return std::nullopt;
  if (RejectsAlpha(alpha)) return std::nullopt;
  return VarianceTest(n, alpha, isOneSided);
}

VarianceTest::VarianceTest(double n, double alpha, bool isOneSided)
    : df_(n - 1),
      isOneSided_(isOneSided),
      upper_(kelcommon::IsfChiSquare(isOneSided ? alpha : alpha / 2, df_)),
      lower_(kelcommon::IdfChiSquare(isOneSided ? alpha : alpha / 2, df_)) {}

Answer VarianceTest::Power(double ratio) const {
  if (ratio <= 0) return NoValue::Refused;
  if (std::isinf(ratio)) return NoValue::Refused;
  const double above = kelcommon::SfChiSquare(upper_ / ratio, df_);
  const double below = kelcommon::CdfChiSquare(lower_ / ratio, df_);
  if (isOneSided_) return ratio < 1 ? below : above;
  return above + below;
}

// Where x f(x) of the density f of chi-square is the same at both critical values over the ratio.
double VarianceTest::RatioOfLeastPower() const { return (upper_ - lower_) / (df_ * std::log(upper_ / lower_)); }

}  // namespace kelpower::variances
