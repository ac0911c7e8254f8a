#include "expected_power/expected_power.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "frame/checks.h"
#include "frame/integral.h"
#include "kelcommon/kel_dist_fun.h"

namespace kelpower::expected_power {

using KelMath::KelDistFun;

namespace {

constexpr double farthest = 8.5;  // standard deviations, beyond which there is less than 1e-16 of the belief
constexpr double tolerance = 1e-13;

bool Rejects(const Belief& belief) { return belief.sd < 0; }

double NormalDensity(double z) {
  constexpr double inverseRootOfTwoPi = 0.3989422804014326779;
  return inverseRootOfTwoPi * std::exp(-z * z / 2);
}

/// The integral of density times power over the effects on one side of the null, at distances up to `end` standard
/// deviations in the direction `sign`. Both ends of each piece are at fixed ratios of distances. So the bends of the
/// power, a few standard errors from the null and about one wide, are as wide as their piece, however large the study.
class OneSide {
public:
  OneSide(PowerOfEffect powerAt, const Belief& belief, double sign)
      : powerAt_(powerAt), belief_(belief), sign_(sign), nullZ_((belief.null - belief.mean) / belief.sd) {}

  double Sum() const {
    constexpr double ratio = 8;
    constexpr double negligible = 1e-13;
    const double start = std::max(0.0, -sign_ * nullZ_ - farthest);
    double end = farthest - sign_ * nullZ_;
    double sum = 0;
    while (end > start && end > negligible) {
      const double next = end / ratio > negligible ? std::max(end / ratio, start) : start;
      sum += Integrate([&](double distance) { return At(distance); }, next, end, tolerance).value;
      end = next;
    }
    return sum;
  }

private:
  double At(double distance) const {
    return NormalDensity(nullZ_ + sign_ * distance) * powerAt_(belief_.null + sign_ * distance * belief_.sd);
  }

  PowerOfEffect powerAt_;
  Belief belief_;
  double sign_;
  double nullZ_;
};

/// The integral over a belief so far from the null that the power hardly bends within it.
double SumFarFromNull(PowerOfEffect powerAt, const Belief& belief) {
  const auto integrand = [&](double z) { return NormalDensity(z) * powerAt(belief.mean + z * belief.sd); };
  return Integrate(integrand, -farthest, 0, tolerance).value + Integrate(integrand, 0, farthest, tolerance).value;
}

}  // namespace

Answer ExpectedPower(PowerOfEffect powerAt, const Belief& belief) {
  constexpr double far = 100;  // standard deviations
  if (Rejects(belief)) return NoValue::Refused;
  if (belief.sd == 0) return powerAt(belief.mean);
  const double distance = belief.mean - belief.null;
  if (!std::isfinite(distance) || !std::isfinite(belief.sd)) return std::numeric_limits<double>::quiet_NaN();
  const double sum = std::fabs(distance / belief.sd) > far
                         ? SumFarFromNull(powerAt, belief)
                         : OneSide(powerAt, belief, -1).Sum() + OneSide(powerAt, belief, 1).Sum();
  return std::clamp(sum, 0.0, 1.0);
}

Answer Limit(const Belief& belief, Success success) {
  if (Rejects(belief)) return NoValue::Refused;
  const double distance = belief.mean - belief.null;
  if (belief.sd == 0 && distance == 0) return NoValue::Refused;
  if (success == Success::EitherDirection) return 1;
  return KelDistFun::CdfStdNorm(distance / belief.sd);
}

Answer FirstSize(FunctionView<Answer(double)> expectedAt, const Belief& belief, Success success, double wished,
                 const Sizes& sizes, Stop stop) {
  if (RejectsOpenUnit(wished)) return NoValue::Refused;
  if (!(sizes.smallest >= 1 && sizes.largest <= largestCount)) return NoValue::Refused;
  const Answer limit = Limit(belief, success);
  if (!limit) return limit;
  if (!(*limit > wished)) return NoValue::NotReached;

  const auto reaches = [&](double size) { return expectedAt(size).ValueOr(belowEveryPower) >= wished; };
  double low = sizes.smallest;
  if (!(low <= sizes.largest)) return NoValue::NotReached;
  if (reaches(low)) return low;
  double high = low;
  double step = 1;
  do {
    if (AnswersStop(stop)) return NoValue::Stopped;
    if (high >= sizes.largest) return NoValue::NotReached;
    low = high;
    high = std::min(high + step, sizes.largest);
    step *= 2;
  } while (!reaches(high));
  while (high - low > 1) {
    if (AnswersStop(stop)) return NoValue::Stopped;
    const double middle = std::floor(low + (high - low) / 2);
    (reaches(middle) ? high : low) = middle;
  }
  return high;
}

}  // namespace kelpower::expected_power
