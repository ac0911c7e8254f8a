#ifndef KELCOMMON_KEL_DIST_FUN_H
#define KELCOMMON_KEL_DIST_FUN_H

#include "kelcommon/api.h"

namespace KelMath {

/// Probability distributions. Each function is pure, may be called from any thread, throws nothing and returns
/// quickly for every bit pattern of its arguments.
///
/// Common to all:
/// - a NaN argument gives NaN (binomials: and error code 1), never the missing value;
/// - outside its domain a function gives the system-missing value, `KelCommon::KelMV::Missing()`;
/// - probabilities are clamped to [0, 1];
/// - the trailing tuning arguments of `IdfT`, `NonCentralCdfT` and `NonCentralCdfF` are accepted and not needed: the
///   accuracy is the same for all of their values.
class KELCOMMON_API KelDistFun {
public:
  static double IdfF(double p, double df1, double df2) noexcept;
  static double NonCentralCdfF(double x, double df1, double df2, double noncentrality, double eps) noexcept;
  static double IdfT(double p, double df, double a, double b) noexcept;
  static double NonCentralCdfT(double x, double df, double noncentrality, double tuning) noexcept;
  static double CdfStdNorm(double z) noexcept;
  static double IdfStdNorm(double p) noexcept;
  static double CdfBeta(double x, double a, double b) noexcept;
  static double IdfBeta(const double& p, const double& a, const double& b) noexcept;
  static double CdfBin(double x, double n, double p, long& err) noexcept;
  static double IdfBin(double prob, double n, double p, long& err) noexcept;
  static double PdfBin(double x, double n, double p, long& err) noexcept;
  static double PdfNegBin(double x, double r, double p, long& err) noexcept;
  static double orvadnlgam(const double& x) noexcept;
};

}  // namespace KelMath

#endif
