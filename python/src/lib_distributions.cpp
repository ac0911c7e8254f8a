#include <cmath>

#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"
#include "lib_functions.h"
#include "lib_ufunc.h"

namespace kelpython {
namespace {

using KelMath::KelDistFun;

// The accuracy is the same for all values of these arguments.
constexpr double tuning = 0;

/// Outside the domain there is no value.
double NaNForMissing(double v) { return KelCommon::KelMV::IsMissing(v) ? std::numeric_limits<double>::quiet_NaN() : v; }

double NaNForError(double v, long error) {
  return error != 0 ? std::numeric_limits<double>::quiet_NaN() : NaNForMissing(v);
}

// Named as the ufuncs are.

double norm_cdf(double z) { return NaNForMissing(KelDistFun::CdfStdNorm(z)); }

double norm_sf(double z) { return norm_cdf(-z); }

double norm_ppf(double p) { return NaNForMissing(KelDistFun::IdfStdNorm(p)); }

double norm_isf(double p) { return -norm_ppf(p); }

double nct_cdf(double x, double df, double nc) { return NaNForMissing(KelDistFun::NonCentralCdfT(x, df, nc, tuning)); }

double nct_sf(double x, double df, double nc) { return nct_cdf(-x, df, -nc); }

double t_cdf(double x, double df) { return nct_cdf(x, df, 0); }

double t_sf(double x, double df) { return t_cdf(-x, df); }

double t_ppf(double p, double df) { return NaNForMissing(KelDistFun::IdfT(p, df, tuning, tuning)); }

double t_isf(double p, double df) { return -t_ppf(p, df); }

double ncf_cdf(double x, double dfn, double dfd, double nc) {
  return NaNForMissing(KelDistFun::NonCentralCdfF(x, dfn, dfd, nc, tuning));
}

double f_cdf(double x, double dfn, double dfd) { return ncf_cdf(x, dfn, dfd, 0); }

// The reciprocal of a value at or below 0 is no value of the variable.
double f_sf(double x, double dfn, double dfd) {
  return f_cdf(x <= 0 ? std::numeric_limits<double>::infinity() : 1 / x, dfd, dfn);
}

double f_ppf(double p, double dfn, double dfd) { return NaNForMissing(KelDistFun::IdfF(p, dfn, dfd)); }

double f_isf(double p, double dfn, double dfd) { return 1 / f_ppf(p, dfd, dfn); }

double beta_cdf(double x, double a, double b) { return NaNForMissing(KelDistFun::CdfBeta(x, a, b)); }

double beta_ppf(double p, double a, double b) { return NaNForMissing(KelDistFun::IdfBeta(p, a, b)); }

double binom_cdf(double k, double n, double p) {
  long error = 0;
  const double lower = KelDistFun::CdfBin(k, n, p, error);
  return NaNForError(lower, error);
}

// P(X > k) = I_p(k + 1, n - k).
double binom_sf(double k, double n, double p) {
  const double lower = binom_cdf(k, n, p);
  if (std::isnan(lower)) return lower;
  if (k < 0) return 1;
  if (k >= n) return 0;
  const double count = std::floor(k);
  return beta_cdf(p, count + 1, n - count);
}

double binom_pmf(double k, double n, double p) {
  long error = 0;
  const double mass = KelDistFun::PdfBin(k, n, p, error);
  return NaNForError(mass, error);
}

double binom_lower_critical(double q, double n, double p) {
  long error = 0;
  const double count = KelDistFun::IdfBin(q, n, p, error);
  return NaNForError(count, error);
}

// The count after the last one whose probability is too small.
double binom_ppf(double q, double n, double p) {
  const double count = binom_lower_critical(q, n, p);
  if (q == 0) return std::isnan(count) ? count : -1;
  return binom_cdf(count, n, p) < q ? count + 1 : count;
}

double nbinom_pmf(double k, double r, double p) {
  long error = 0;
  const double mass = KelDistFun::PdfNegBin(k, r, p, error);
  return NaNForError(mass, error);
}

double gammaln(double x) { return NaNForMissing(KelDistFun::orvadnlgam(x)); }

}  // namespace

bool AddDistributionUfuncs(PyObject* dictionary) {
  static std::vector<Ufunc> ufuncs = {
#define KEL_DISTRIBUTION(name, doc) UfuncOf<float, double>(#name, &name, doc),
#include "lib_distributions.inc"
#undef KEL_DISTRIBUTION
  };
  return AddUfuncs(dictionary, ufuncs);
}

}  // namespace kelpython
