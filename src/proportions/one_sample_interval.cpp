#include "proportions/one_sample_interval.h"

#include <cmath>

#include "frame/root_finders.h"
#include "kelcommon/kel_dist_fun.h"
#include "proportions/wald.h"

namespace kelpower::proportions {

using KelMath::KelDistFun;

namespace {

constexpr double waldCorrection = 0.5;  // over the size

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

}  // namespace

OneSampleInterval::OneSampleInterval(const Design& design)
    : design_(design), z_(KelDistFun::IdfStdNorm(1 - design.alpha / 2)) {}

double OneSampleInterval::HalfWidth(double size) const {
  const auto& [method, proportion, alpha, isCorrected] = design_;
  const double x = size * proportion;
  const double y = size - x;
  switch (method) {
    case OneSampleMethod::Wald: {
      const double halfWidth = z_ * std::sqrt((1 - proportion) * proportion / size);
      return isCorrected ? halfWidth + waldCorrection / size : halfWidth;
    }
    case OneSampleMethod::LogitAdjusted: {
      const double variance = (size + 1) / size * ((size + 2) / (x + 1)) / (y + 1);
      return LogitHalfWidth(std::log((x + 0.5) / (y + 0.5)), z_ * std::sqrt(variance));
    }
    case OneSampleMethod::Logit:
      return LogitHalfWidth(std::log(proportion / (1 - proportion)), z_ * std::sqrt(1 / (y * proportion)));
    case OneSampleMethod::ClopperPearson: return BetaHalfWidth(x, y + 1, x + 1, y, alpha);
    case OneSampleMethod::Jeffreys: return BetaHalfWidth(x + 0.5, y + 0.5, x + 0.5, y + 0.5, alpha);
    case OneSampleMethod::Wilson:
      return isCorrected ? CorrectedWilsonHalfWidth(size, proportion, z_) : WilsonHalfWidth(size, proportion, z_);
    case OneSampleMethod::AgrestiCoull: {
      const double centre = (z_ * z_ / 2 + x) / (z_ * z_ + size);
      return z_ * std::sqrt((1 - centre) * centre / (z_ * z_ + size));
    }
  }
  return 0;
}

Answer OneSampleInterval::SizeFor(double halfWidth, Stop stop) const {
  const auto& [method, proportion, alpha, isCorrected] = design_;
  if (method == OneSampleMethod::Wald) {
    const double variance = proportion * (1 - proportion);
    return isCorrected ? CorrectedWaldSize(halfWidth, variance, z_, waldCorrection) : WaldSize(halfWidth, variance, z_);
  }
  const auto excess = [&](double size) { return halfWidth - HalfWidth(size); };
  return SolveContinuous(1, 400, 1e-9, excess, stop);
}

}  // namespace kelpower::proportions
