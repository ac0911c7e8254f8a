/// The distributions with R's arguments. An upper tail is computed by itself and not as 1 minus the lower one, so that it
/// keeps its digits where it is small.

#include <cmath>
#include <cstring>

#include "calls.h"
#include "kelcommon/kel_dist_fun.h"

namespace {

using KelMath::KelDistFun;

double PNorm(const double* x, int lower) { return KelDistFun::CdfStdNorm(lower ? x[0] : -x[0]); }

double QNorm(const double* x, int lower) {
  const double z = KelDistFun::IdfStdNorm(x[0]);
  return lower || z == kelr_missing() ? z : -z;
}

/// With the sign of the noncentrality turned, T is turned too.
double PT(const double* x, int lower) {
  return lower ? KelDistFun::NonCentralCdfT(x[0], x[1], x[2], 0) : KelDistFun::NonCentralCdfT(-x[0], x[1], -x[2], 0);
}

double QT(const double* x, int lower) {
  const double t = KelDistFun::IdfT(x[0], x[1], 0, 0);
  return lower || t == kelr_missing() ? t : -t;
}

double PF(const double* x, int) { return KelDistFun::NonCentralCdfF(x[0], x[1], x[2], x[3], 0); }

/// P(F > x) = P(B < df2 / (df2 + df1 x)), B beta with df2 / 2 and df1 / 2; as 1 / F has the degrees of freedom exchanged.
double PCentralF(const double* x, int lower) {
  if (lower) return KelDistFun::NonCentralCdfF(x[0], x[1], x[2], 0, 0);
  if (!(x[1] > 0) || !(x[2] > 0)) return kelr_missing();
  return x[0] > 0 ? KelDistFun::NonCentralCdfF(1 / x[0], x[2], x[1], 0, 0) : 1;
}

double QF(const double* x, int lower) {
  if (lower) return KelDistFun::IdfF(x[0], x[1], x[2]);
  const double f = KelDistFun::IdfF(x[0], x[2], x[1]);
  return f == kelr_missing() ? f : 1 / f;
}

double PBeta(const double* x, int lower) {
  return lower ? KelDistFun::CdfBeta(x[0], x[1], x[2]) : KelDistFun::CdfBeta(1 - x[0], x[2], x[1]);
}

double QBeta(const double* x, int) { return KelDistFun::IdfBeta(x[0], x[1], x[2]); }

double DBinom(const double* x, int) {
  long error = 0;
  return x[0] == std::floor(x[0]) ? KelDistFun::PdfBin(x[0], x[1], x[2], error) : 0;
}

/// P(X > k) = I_p(k + 1, n - k).
double PBinom(const double* x, int lower) {
  long error = 0;
  const double below = KelDistFun::CdfBin(x[0], x[1], x[2], error);
  if (lower || error || below == kelr_missing()) return below;
  const double k = std::floor(x[0]);
  if (k < 0) return 1;
  return k >= x[1] ? 0 : KelDistFun::CdfBeta(x[2], k + 1, x[1] - k);
}

/// The least k with P(X <= k) >= prob, as R defines it; the library gives the largest with P(X <= k) <= prob.
double QBinom(const double* x, int) {
  long error = 0;
  const double k = KelDistFun::IdfBin(x[0], x[1], x[2], error);
  if (error || k == kelr_missing()) return kelr_missing();
  if (k >= x[1]) return x[2] > 0 ? x[1] : 0;
  if (k >= 0 && KelDistFun::CdfBin(k, x[1], x[2], error) >= x[0]) return k;
  return k + 1;
}

double DNegBinom(const double* x, int) {
  long error = 0;
  return x[0] == std::floor(x[0]) ? KelDistFun::PdfNegBin(x[0], x[1], x[2], error) : 0;
}

double LogGamma(const double* x, int) { return KelDistFun::orvadnlgam(x[0]); }

const KelrDistribution distributions[] = {
    {"pnorm", 1, PNorm},
    {"qnorm", 1, QNorm},
    {"pt", 3, PT},
    {"qt", 2, QT},
    {"pf", 4, PF},
    {"pf_central", 3, PCentralF},
    {"qf", 3, QF},
    {"pbeta", 3, PBeta},
    {"qbeta", 3, QBeta},
    {"dbinom", 3, DBinom},
    {"pbinom", 3, PBinom},
    {"qbinom", 3, QBinom},
    {"dnbinom", 3, DNegBinom},
    {"lgamma", 1, LogGamma},
};

}  // namespace

const KelrDistribution* kelr_find_distribution(const char* name) {
  for (const KelrDistribution& each : distributions) {
    if (std::strcmp(each.name, name) == 0) return &each;
  }
  return nullptr;
}
