#include <cmath>

#include "frame/root_finders.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelpower.h"

using namespace kelpower;
using KelMath::KelDistFun;

namespace {

enum IntervalMethod { kWald, kAgrestiMin, kBonettPrice };

/// The confidence interval of the difference p12 - p21. The adjusted methods add 1 and 2 discordant pairs in all:
/// Agresti, A. and Min, Y. (2005), Statistics in Medicine 24, 729-740; Bonett, D. G. and Price, R. M. (2012), Journal
/// of Educational and Behavioral Statistics 37, 479-488.
struct DifferenceInterval {
  double discordant;
  double difference;
  int method;
  double z;

  DifferenceInterval(double p12, double p21, int ciMethod, double alpha)
      : discordant(p12 + p21), difference(p12 - p21), method(ciMethod), z(KelDistFun::IdfStdNorm(1 - alpha / 2)) {}

  double HalfWidth(double size) const {
    switch (method) {
      case kWald: return z * std::sqrt(Variance() / size);
      case kAgrestiMin: return AdjustedHalfWidth(size, 1);
      case kBonettPrice: return AdjustedHalfWidth(size, 2);
      default: return 0;
    }
  }

  double Variance() const { return discordant - difference * difference; }

private:
  double AdjustedHalfWidth(double size, double addedPairs) const {
    const double centre = difference * (size / (size + 2));
    const double spread = (discordant * size + addedPairs) / (size + 2);
    return z * std::sqrt((spread - centre * centre) / (size + 2));
  }
};

double WaldSize(double halfWidth, double variance, double z, bool isCorrected) {
  if (!isCorrected) return z / halfWidth * variance * (z / halfWidth);
  const double scaled = variance * z * z;
  const double root = (std::sqrt(4 * halfWidth + scaled) + std::sqrt(scaled)) / (2 * halfWidth);
  return root * root;
}

}  // namespace

extern "C" double HalfCIRelSampBinom(double sampleSize, double discordant12, double discordant21, int ciMethod,
                                     double alpha, std::uint8_t continuityCorrection) {
  const double halfWidth = DifferenceInterval(discordant12, discordant21, ciMethod, alpha).HalfWidth(sampleSize);
  return ciMethod == kWald && continuityCorrection == 1 ? halfWidth + 1 / sampleSize : halfWidth;
}

extern "C" double PowerReversebyHalfCIRelSampBinom(double halfWidth, double discordant12, double discordant21,
                                                   int ciMethod, double alpha, std::uint8_t continuityCorrection,
                                                   StopRequest* cancel) {
  const DifferenceInterval interval(discordant12, discordant21, ciMethod, alpha);
  if (ciMethod == kWald) {
    return std::ceil(WaldSize(halfWidth, interval.Variance(), interval.z, continuityCorrection != 0));
  }
  const auto objective = [&](double size) { return halfWidth - interval.HalfWidth(size); };
  return std::ceil(SolveContinuous(1, 400, 1e-9, objective, cancel));
}
