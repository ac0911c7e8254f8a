#include "frame/density.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "frame/rejection.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"

namespace kelpower {
namespace {

using KelCommon::KelMV;
using KelMath::KelDistFun;

double NaNIfMissing(double probability) {
  return KelMV::IsMissing(probability) ? std::numeric_limits<double>::quiet_NaN() : probability;
}

}  // namespace

double NormalDensity(double x, double mean, double sd) {
  constexpr double rootOfTwoPi = 2.5066282746310002;
  const double z = (x - mean) / sd;
  return std::exp(-z * z / 2) / (sd * rootOfTwoPi);
}

double NormalBelow(double x, double mean, double sd) { return KelDistFun::CdfStdNorm((x - mean) / sd); }

double TBelow(double x, double df, double noncentrality) {
  return NaNIfMissing(KelDistFun::NonCentralCdfT(x, df, noncentrality, noncentralAccuracy));
}

double FBelow(double x, double df1, double df2, double noncentrality) {
  return NaNIfMissing(KelDistFun::NonCentralCdfF(x, df1, df2, noncentrality, noncentralAccuracy));
}

double BinomialMass(double count, double trials, double proportion) {
  long error = 0;
  return NaNIfMissing(KelDistFun::PdfBin(count, trials, proportion, error));
}

double BinomialBelow(double count, double trials, double proportion) {
  if (count < 0) return 0;
  if (count >= trials) return 1;
  long error = 0;
  return NaNIfMissing(KelDistFun::CdfBin(count, trials, proportion, error));
}

double DensityOf(const std::function<double(double)>& below, double x, double step) {
  const double near = below(x + step) - below(x - step);
  const double far = below(x + 2 * step) - below(x - 2 * step);
  return std::max(0.0, (8 * near - far) / (12 * step));
}

}  // namespace kelpower
