#include <cmath>
#include <limits>

#include "correlation/correlation.h"
#include "frame/checks.h"
#include "kelpower.h"

using namespace kelpower;

namespace {

enum VarianceMethod { kBonettWright = 0, kFiellerHartleyPearson = 1, kCarusoCliff = 2 };

bool RejectsMethod(int varianceMethod) {
  return varianceMethod != kBonettWright && varianceMethod != kFiellerHartleyPearson && varianceMethod != kCarusoCliff;
}

/// One over the standard error of Fisher's z of a rank correlation, by one of three approximations of its variance:
///   (1 + rho^2 / 2) / (N - 3)                   Bonett and Wright (2000)
///   1.06 / (N - 3)                              Fieller, Hartley and Pearson (1957)
///   |z| / (6 N + 4 sqrt(N)) + 1 / (N - 2)       Caruso and Cliff (1997)
/// and infinite for any other method. `absoluteZ` is |z| of rho.
double Precision(int varianceMethod, double sampleSize, double rho, double absoluteZ) {
  if (varianceMethod == kBonettWright) return std::sqrt((sampleSize - 3) / (1 + rho * rho / 2));
  if (varianceMethod == kFiellerHartleyPearson) return std::sqrt((sampleSize - 3) / 1.06);
  if (varianceMethod != kCarusoCliff) return std::numeric_limits<double>::infinity();
  const double root = std::sqrt(sampleSize);
  return root / std::sqrt(absoluteZ / (6 + 4 / root) + sampleSize / (sampleSize - 2));
}

double HalfWidth(double sampleSize, double correlation, int varianceMethod, double quantile) {
  const double z = std::atanh(correlation);
  return BackTransformedHalfWidth(z, quantile / Precision(varianceMethod, sampleSize, correlation, std::fabs(z)));
}

}  // namespace

double SpearmanTest::Power(double sampleSize, double alternative, double null) const {
  if (sampleSize < 3) return -1;
  if (RejectsCorrelation(alternative)) return -1;
  if (RejectsCorrelation(null)) return -1;
  if (RejectsOpenUnit(Level().alpha)) return -1;
  // Two of the variances are infinite at 3 cases, and unknown methods are not looked at yet; that is intended.
  if (sampleSize == 3 && varianceMethod_ != kCarusoCliff) return 1;
  if (RejectsMethod(varianceMethod_)) return -1;

  const bool isExtreme = alternative == 1 || alternative == -1;
  const double absoluteZ = isExtreme ? std::numeric_limits<double>::max() : std::fabs(InvTanh(alternative));
  const double precision = Precision(varianceMethod_, sampleSize, alternative, absoluteZ);
  return Level().Power(FisherDifference(alternative, null) * precision, 1, alternative > null);
}

extern "C" double PowerbyOneSampSpearman(double sampleSize, double alternativeCorrelation, double nullCorrelation,
                                         int varianceMethod, int oneSided, double alpha) {
  const SpearmanTest test({alpha, oneSided}, varianceMethod);
  return test.Power(sampleSize, alternativeCorrelation, nullCorrelation);
}

extern "C" double PowerReversebyOneSampSpearman(double power, double alternativeCorrelation, double nullCorrelation,
                                                int varianceMethod, int oneSided, double alpha) {
  const SpearmanTest test({alpha, oneSided}, varianceMethod);
  const double lower = varianceMethod == kCarusoCliff ? 3 : 4;
  return SizeForPower(power, test, alternativeCorrelation, nullCorrelation, lower, 400, nullptr);
}

extern "C" double HalfCIOneSampSpearman(double sampleSize, double correlation, int varianceMethod, double alpha) {
  return HalfWidth(sampleSize, correlation, varianceMethod, IntervalQuantile(alpha));
}

// Starts at 4 cases for every method, unlike the search for a power; that is intended.
extern "C" double PowerReversebyHalfCIOneSampSpearman(double halfWidth, double correlation, int varianceMethod,
                                                      double alpha, StopRequest* stop) {
  const double quantile = IntervalQuantile(alpha);
  return SizeForInterval(
      halfWidth, [&](double n) { return HalfWidth(n, correlation, varianceMethod, quantile); }, 4, 400, stop);
}
