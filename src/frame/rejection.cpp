#include "frame/rejection.h"

#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"

namespace kelpower {

using KelCommon::KelMV;
using KelMath::KelDistFun;

namespace {

double ZeroIfMissing(double probability) { return KelMV::IsMissing(probability) ? 0.0 : probability; }

double LowerTailT(double x, double df, double noncentrality) {
  return ZeroIfMissing(KelDistFun::NonCentralCdfT(x, df, noncentrality, noncentralAccuracy));
}

}  // namespace

FTest FTest::AtLevel(double alpha, double df1, double df2, double eps) {
  return {df1, df2, KelDistFun::IdfF(1 - alpha, df1, df2), eps};
}

double FTest::Power(double noncentrality) const {
  return 1 - ZeroIfMissing(KelDistFun::NonCentralCdfF(critical, df1, df2, noncentrality, eps));
}

TTest TTest::OneSided(double alpha, double df, QuantileTuning tuning) {
  return {df, KelDistFun::IdfT(1 - alpha, df, tuning.a, tuning.b)};
}

TTest TTest::TwoSided(double alpha, double df, QuantileTuning tuning) { return OneSided(alpha * 0.5, df, tuning); }

double TTest::PowerUpperTail(double noncentrality) const { return 1 - LowerTailT(critical, df, noncentrality); }

// T'^2 is noncentral F on 1 and df degrees of freedom, which takes one sum instead of two for the same digits. A
// critical value that is negative or missing (of a level above 1) or that overflows when squared is left to T'.
double TTest::PowerBothTails(double noncentrality) const {
  constexpr double squareable = 1e150;
  if (critical > 0 && critical < squareable)
    return FTest{1, df, critical * critical, noncentralAccuracy}.Power(noncentrality * noncentrality);
  return 1 - LowerTailT(critical, df, noncentrality) + LowerTailT(-critical, df, noncentrality);
}

double IntervalQuantileT(double alpha, double df) {
  const QuantileTuning tuning;
  return KelDistFun::IdfT(1 - alpha * 0.5, df, tuning.a, tuning.b);
}

}  // namespace kelpower
