#include "variances/two_variances.h"

#include <cmath>

#include "frame/checks.h"
#include "kelcommon/kel_dist_fun.h"

namespace kelpower::variances {

namespace {

using KelMath::KelDistFun;

double LowerTail(double x, double df1, double df2) { return KelDistFun::NonCentralCdfF(x, df1, df2, 0, 0); }

}  // namespace

std::optional<TwoVariancesTest> TwoVariancesTest::Checked(double n1, double n2, double alpha, bool isOneSided) {
  if (n1 < 2) return std::nullopt;
  if (n2 < 2) return std::nullopt;
  if (std::isinf(n1) || std::isinf(n2)) return std::nullopt;
  if (RejectsAlpha(alpha)) return std::nullopt;
  return TwoVariancesTest(n1, n2, alpha, isOneSided);
}

TwoVariancesTest::TwoVariancesTest(double n1, double n2, double alpha, bool isOneSided)
    : df1_(n1 - 1),
      df2_(n2 - 1),
      isOneSided_(isOneSided),
      lower_(KelDistFun::IdfF(isOneSided ? alpha : alpha / 2, df1_, df2_)),
      upperReciprocal_(KelDistFun::IdfF(isOneSided ? alpha : alpha / 2, df2_, df1_)) {}

Answer TwoVariancesTest::Power(double ratio) const {
  if (ratio <= 0) return NoValue::Refused;
  if (std::isinf(ratio)) return NoValue::Refused;
  const double above = LowerTail(upperReciprocal_ * ratio, df2_, df1_);
  const double below = LowerTail(lower_ / ratio, df1_, df2_);
  if (isOneSided_) return ratio < 1 ? below : above;
  return above + below;
}

// Where x f(x) of the density f of F is the same at both critical values over the ratio: with c = df1 / df2 and
// a = df1 / (df1 + df2) that is 1 + c U / ratio = (U / L)^a (1 + c L / ratio).
double TwoVariancesTest::RatioOfLeastPower() const {
  const double c = df1_ / df2_;
  const double upper = UpperCritical();
  const double growth = std::pow(upper / lower_, df1_ / (df1_ + df2_));
  return c * (upper - growth * lower_) / (growth - 1);
}

}  // namespace kelpower::variances
