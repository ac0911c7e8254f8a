#include "frame/whole_size.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "kelcommon/kel_dist_fun.h"

namespace kelpower {

namespace {

/// The number that is tried first, where nothing is known.
constexpr double firstTried = 64;

/// Lines that are followed before every other step halves, and how far upwards one may lead.
constexpr int mostLines = 8;
constexpr double mostTrustedFactor = 1e4;

/// Powers that round to 0 or 1 are taken for the nearest that do not.
double QuantileOf(double power) {
  constexpr double edge = 0x1p-53;
  return KelMath::KelDistFun::IdfStdNorm(std::clamp(power, edge, 1 - edge));
}

class Search {
public:
  Search(double smallest, double largest, double level, double target)
      : largest_(largest), missed_(smallest - 1), target_(target), targetQuantile_(QuantileOf(target)) {
    // Two-sided tests reject in the direction of the effect at half the level.
    near_ = {0, QuantileOf(level / 2) - targetQuantile_};
  }

  bool IsOpen() const { return reached_ - missed_ > 1 && missed_ < largest_; }
  std::optional<double> Found() const { return std::isinf(reached_) ? std::nullopt : std::optional(reached_); }

  void Learn(double number, double power) {
    (power >= target_ ? reached_ : missed_) = number;
    if (std::isnan(power)) return;
    Probe probe{std::sqrt(number), QuantileOf(power) - targetQuantile_};
    if (std::fabs(probe.v) < std::fabs(near_.v)) std::swap(probe, near_);
    if (std::fabs(probe.v) < std::fabs(far_.v)) far_ = probe;
  }

  /// The next number to try, between those that miss the target and those that reach it.
  double Next() {
    ++steps_;
    if (steps_ == 1) return std::clamp(firstTried, missed_ + 1, largest_);
    const bool isLineTrusted = steps_ <= mostLines || steps_ % 2 == 0;
    const double guess = isLineTrusted ? Crossing() : NAN;
    if (std::isinf(reached_)) return Upwards(guess);
    if (guess > missed_ && guess <= reached_) return std::min(guess, reached_ - 1);
    return Middle();
  }

private:
  /// In coordinates in which a power is nearly a straight line, which meets the target at v = 0.
  struct Probe {
    double u;
    double v;
  };

  /// The first whole number beyond the crossing of the line.
  double Crossing() const {
    const double u = near_.u - near_.v * ((near_.u - far_.u) / (near_.v - far_.v));
    return u > 0 ? std::ceil(u * u) : NAN;
  }

  /// While no number reaches the target: ever further, unless a line says where.
  double Upwards(double guess) {
    const double step = std::min((missed_ + 1) * factor_, largest_);
    factor_ *= factor_;
    return guess > missed_ && guess <= std::min((missed_ + 1) * mostTrustedFactor, largest_) ? guess : step;
  }

  /// Between numbers that are far apart, of their roots' orders of magnitude.
  double Middle() const {
    const double low = missed_ + 1;
    if (reached_ > 8 * low) return std::floor(std::sqrt(low) * std::sqrt(reached_));
    return missed_ + std::floor((reached_ - missed_) / 2);
  }

  double largest_;
  double missed_;                                             // the largest number that misses the target
  double reached_ = std::numeric_limits<double>::infinity();  // the smallest that reaches it
  double target_;
  double targetQuantile_;
  Probe near_{};  // the two nearest to the target
  Probe far_{0, std::numeric_limits<double>::infinity()};
  double factor_ = 4;
  int steps_ = 0;
};

}  // namespace

std::optional<double> FirstWholeSize(double smallest, double largest, double level, double target,
                                     FunctionView<double(double number)> powerAt) {
  Search search(smallest, largest, level, target);
  while (search.IsOpen()) {
    const double number = search.Next();
    search.Learn(number, powerAt(number));
  }
  return search.Found();
}

}  // namespace kelpower
