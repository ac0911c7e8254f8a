#include "correlation/correlation.h"

#include <cmath>
#include <limits>

#include "frame/increasing_search.h"
#include "frame/root_finders.h"
#include "kelcommon/kel_dist_fun.h"

namespace kelpower {

using KelMath::KelDistFun;

CorrelationLevel::CorrelationLevel(double level, int oneSided)
    : alpha(level), isOneSided(oneSided != 0), critical(KelDistFun::IdfStdNorm(1 - (isOneSided ? alpha : alpha / 2))) {}

double CorrelationLevel::Power(double shift, double spread, bool isAbove) const {
  const auto above = [&] { return KelDistFun::CdfStdNorm((shift - critical) / spread); };
  const auto below = [&] { return 1 - KelDistFun::CdfStdNorm((shift + critical) / spread); };
  if (!isOneSided) return above() + below();
  return isAbove ? above() : below();
}

double FisherDifference(double alternative, double null) {
  constexpr double kLargest = std::numeric_limits<double>::max();
  if (std::fabs(alternative) < 1 && std::fabs(null) < 1) return InvTanh(alternative) - InvTanh(null);
  if (null == -1 || alternative == 1) return kLargest;
  if (alternative == -1 || null == 1) return -kLargest;
  return std::numeric_limits<double>::quiet_NaN();
}

// (tanh(z + h) - tanh(z - h)) / 2 = sinh 2h / (cosh 2z + cosh 2h) = tanh 2h / (1 + cosh 2z / cosh 2h)
double BackTransformedHalfWidth(double z, double h) {
  const double ratio = std::exp(2 * (std::fabs(z) - std::fabs(h))) * (1 + std::exp(-4 * std::fabs(z))) /
                       (1 + std::exp(-4 * std::fabs(h)));
  return std::tanh(2 * h) / (1 + ratio);
}

double IntervalQuantile(double alpha) { return KelDistFun::IdfStdNorm(1 - alpha / 2); }

double SizeForPower(double power, const CorrelationTest& test, double alternative, double null, double lower,
                    double upper, StopRequest* stop) {
  constexpr double kTolerance = 1e-9;
  const auto powerAt = [&](double sampleSize) { return test.Power(sampleSize, alternative, null); };
  if (test.IsIncreasing()) return SolveIncreasingPower(lower, upper, kTolerance, powerAt, power, stop);
  return SolveContinuous(
      lower, upper, kTolerance, [&](double sampleSize) { return powerAt(sampleSize) - power; }, stop);
}

double SizeForInterval(double halfWidth, FunctionView<double(double)> halfWidthAt, double lower, double upper,
                       StopRequest* stop) {
  constexpr double kTolerance = 1e-9;
  return std::ceil(SolveContinuous(
      lower, upper, kTolerance, [&](double sampleSize) { return halfWidth - halfWidthAt(sampleSize); }, stop));
}

}  // namespace kelpower
