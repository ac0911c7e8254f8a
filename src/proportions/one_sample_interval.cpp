#include <cmath>

#include "frame/root_finders.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelpower.h"

using namespace kelpower;
using KelMath::KelDistFun;

namespace {

enum IntervalMethod { kWald, kLogitAdjusted, kLogit, kClopperPearson, kJeffreys, kWilson, kAgrestiCoull };

// Sizes reach 1e307, so no term below multiplies two of them.

/// Half the distance between the logistic functions of L + w and L - w, sinh(w) / (2 (cosh(w) + cosh(L))), with e^-w
/// taken out so that neither a wide nor a narrow interval loses digits.
double LogitHalfWidth(double logit, double w) {
  const double width = std::fabs(w);
  const double halfWidth =
      -std::expm1(-2 * width) / (2 * (1 + std::exp(-2 * width) + std::exp(logit - width) + std::exp(-logit - width)));
  return std::copysign(halfWidth, w);
}

double BetaHalfWidth(double lowerA, double lowerB, double upperA, double upperB, double alpha) {
  const double lower = KelDistFun::IdfBeta(alpha / 2, lowerA, lowerB);
  const double upper = KelDistFun::IdfBeta(1 - alpha / 2, upperA, upperB);
  return (upper - lower) / 2;
}

double WilsonHalfWidth(double size, double proportion, double z) {
  const double variance = (1 - proportion) * proportion;
  return std::sqrt(size) * z * std::sqrt(variance + z * z / (4 * size)) / (size + z * z);
}

double CorrectedWilsonHalfWidth(double size, double proportion, double z) {
  const double a = z * z - 1 / size + size * (4 * proportion * (1 - proportion));
  const double b = 4 * proportion - 2;
  const double upper = (z * std::sqrt(a - b) + 1) / (z * z + size) / 2;
  const double lower = (-1 - z * std::sqrt(b + a)) / (z * z + size) / 2;
  return (upper - lower) / 2;
}

/// The confidence interval of one proportion, by a method of `IntervalMethod`.
struct ProportionInterval {
  double proportion;
  int method;
  double alpha;
  bool isCorrected;  ///< Wilson's interval only
  double z;

  ProportionInterval(double p, int ciMethod, double level, std::uint8_t continuityCorrection)
      : proportion(p),
        method(ciMethod),
        alpha(level),
        isCorrected(continuityCorrection != 0),
        z(KelDistFun::IdfStdNorm(1 - level / 2)) {}

  double HalfWidth(double size) const {
    const double x = size * proportion;
    const double y = size - x;
    switch (method) {
      case kWald: return z * std::sqrt((1 - proportion) * proportion / size);
      case kLogitAdjusted: {
        const double variance = (size + 1) / size * ((size + 2) / (x + 1)) / (y + 1);
        return LogitHalfWidth(std::log((x + 0.5) / (y + 0.5)), z * std::sqrt(variance));
      }
      case kLogit: return LogitHalfWidth(std::log(proportion / (1 - proportion)), z * std::sqrt(1 / (y * proportion)));
      case kClopperPearson: return BetaHalfWidth(x, y + 1, x + 1, y, alpha);
      case kJeffreys: return BetaHalfWidth(x + 0.5, y + 0.5, x + 0.5, y + 0.5, alpha);
      case kWilson:
        return isCorrected ? CorrectedWilsonHalfWidth(size, proportion, z) : WilsonHalfWidth(size, proportion, z);
      case kAgrestiCoull: {
        const double centre = (z * z / 2 + x) / (z * z + size);
        return z * std::sqrt((1 - centre) * centre / (z * z + size));
      }
      default: return 0;
    }
  }

  bool HasMethod() const { return method >= kWald && method <= kAgrestiCoull; }
};

double WaldSize(double halfWidth, double proportion, double z, bool isCorrected) {
  const double variance = proportion * (1 - proportion);
  if (!isCorrected) return z / halfWidth * variance * (z / halfWidth);
  const double root = (std::sqrt(z * z * variance + 2 * halfWidth) + z * std::sqrt(variance)) / (2 * halfWidth);
  return root * root;
}

}  // namespace

// The corrections of Wald and of Wilson test the flag differently, on purpose: for 1, and for not 0.
extern "C" double HalfCIOneSampBinom(double sampleSize, double proportion, int ciMethod, double alpha,
                                     std::uint8_t continuityCorrection) {
  const double halfWidth = ProportionInterval(proportion, ciMethod, alpha, continuityCorrection).HalfWidth(sampleSize);
  return ciMethod == kWald && continuityCorrection == 1 ? halfWidth + 0.5 / sampleSize : halfWidth;
}

extern "C" double PowerReversebyHalfCIOneSampBinom(double halfWidth, double proportion, int ciMethod, double alpha,
                                                   std::uint8_t continuityCorrection, StopRequest* cancel) {
  const ProportionInterval interval(proportion, ciMethod, alpha, continuityCorrection);
  if (ciMethod == kWald) return WaldSize(halfWidth, proportion, interval.z, continuityCorrection != 0);

  // An unknown method counts as having the wanted half-width at every size.
  const auto objective = [&](double size) { return interval.HasMethod() ? halfWidth - interval.HalfWidth(size) : 0; };
  return SolveContinuous(1, 400, 1e-9, objective, cancel);
}
