#include "frame/increasing_search.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "frame/rejection.h"
#include "frame/root_finders.h"
#include "kelcommon/kel_dist_fun.h"

namespace kelpower {

using KelMath::KelDistFun;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double largestDouble = std::numeric_limits<double>::max();

/// Most interpolation steps, of which six are usual. The bisection finishes the rest.
constexpr int mostSteps = 16;

/// An evaluated point, and the coordinates (u, v) in which an objective is nearly a straight line that crosses v = 0 at
/// the root.
struct Probe {
  double x;
  double value;
  double u;
  double v;
};

/// What is known of an objective beside its values.
class Shape {
public:
  /// The power of a test is nearly Phi(a sqrt(x) - z), so its normal quantile is straight over the root of the size.
  static Shape PowerLess(double target) { return Shape(true, target, 0); }

  /// slope x less a term that falls little: the logarithm of their ratio is nearly straight over that of the size.
  static Shape RisingBy(double slope) { return Shape(false, 0, slope); }

  Probe At(double x, double value) const {
    if (isPower_) return {x, value, std::sqrt(x), QuantileOf(value + target_) - targetQuantile_};
    return {x, value, std::log(x), -std::log1p(-value / (slope_ * x))};
  }

  double SizeAt(double u) const { return isPower_ ? u * u : std::exp(u); }

  /// A value further from zero has the sign of the exact one, and is no zero to the bisection. Measured errors are
  /// below 1e-14 for a power and 4e-15 of its size for a term of an equation.
  double Noise(double x) const { return isPower_ ? 1e-13 : 4e-14 + 4e-14 * std::fabs(slope_ * x); }

private:
  Shape(bool isPower, double target, double slope)
      : isPower_(isPower), target_(target), targetQuantile_(isPower ? QuantileOf(target) : 0), slope_(slope) {}

  /// Powers that round to 0 or 1 are taken for the nearest that do not.
  static double QuantileOf(double power) {
    constexpr double edge = 0x1p-53;
    return KelDistFun::IdfStdNorm(std::clamp(power, edge, 1 - edge));
  }

  bool isPower_;
  double target_;
  double targetQuantile_;
  double slope_;
};

/// The three probes nearest to the root, nearest first.
class NearestProbes {
public:
  void Add(Probe probe) {
    for (Probe& kept : probes_) {
      if (std::fabs(probe.v) < std::fabs(kept.v)) std::swap(probe, kept);
    }
  }

  /// Where the line through the two nearest probes crosses v = 0.
  double CrossingOfLine() const {
    const auto& [a, b, c] = probes_;
    return a.u - a.v * Slope(a, b);
  }

  /// Where the parabola u(v) through all three does.
  double CrossingOfParabola() const {
    const auto& [a, b, c] = probes_;
    return CrossingOfLine() + a.v * b.v * ((Slope(b, c) - Slope(a, b)) / (c.v - a.v));
  }

  /// How fast the objective rises near the root.
  double Rise() const { return (probes_[1].value - probes_[0].value) / (probes_[1].x - probes_[0].x); }

private:
  static double Slope(const Probe& p, const Probe& q) { return (q.u - p.u) / (q.v - p.v); }

  static constexpr Probe none{0, 0, 0, infinity};
  std::array<Probe, 3> probes_{none, none, none};
};

/// Between these two sizes the sign of the objective is open; outside it is known.
struct OpenInterval {
  double from = -infinity;  ///< negative up to here
  double to = infinity;     ///< positive from here on
};

/// Encloses the root by interpolation.
class Locator {
public:
  Locator(RootObjective objective, const Shape& shape, double tolerance)
      : objective_(objective), shape_(shape), tolerance_(tolerance) {}

  /// Starts from the objective's values at the two ends of a bracket whose upper end may still be below the root.
  OpenInterval Enclose(const Evaluated& lower, const Evaluated& upper);

private:
  void Learn(double x, double value);
  void Visit(double x) { Learn(x, objective_(x)); }
  bool FindUpperEnd();
  bool Narrow();
  bool CloseIn(double root, double reach);

  RootObjective objective_;
  const Shape shape_;
  const double tolerance_;
  NearestProbes nearest_;
  Probe below_{};  ///< the largest size that is too small
  Probe above_{};  ///< the smallest size that is not
  OpenInterval open_;
};

OpenInterval Locator::Enclose(const Evaluated& lower, const Evaluated& upper) {
  above_.x = infinity;
  Learn(lower.x, lower.value);
  Learn(upper.x, upper.value);
  if (!FindUpperEnd()) return open_;

  for (int step = 0; step < mostSteps; ++step) {
    if (Narrow()) break;
  }
  return open_;
}

void Locator::Learn(double x, double value) {
  const Probe probe = shape_.At(x, value);
  nearest_.Add(probe);
  if (value < 0 && x > below_.x) below_ = probe;
  if (value >= 0 && x < above_.x) above_ = probe;
  const double noise = shape_.Noise(x);
  if (value < -noise) open_.from = std::max(open_.from, x);
  if (value > noise) open_.to = std::min(open_.to, x);
}

/// Steps up, a little beyond where the root should be, to a size that is not too small. False when none is found.
bool Locator::FindUpperEnd() {
  double factor = 4;
  for (int step = 0; step < mostSteps && std::isinf(above_.x) && below_.x < largestDouble; ++step) {
    const double guess = 1.05 * shape_.SizeAt(nearest_.CrossingOfLine());
    const bool isUsable = guess > below_.x && guess <= largestDouble;
    Visit(isUsable ? guess : std::min(below_.x * factor, largestDouble));
    factor *= factor;
  }
  return !std::isinf(above_.x);
}

/// One step towards the root; true when it is enclosed as closely as it can be.
bool Locator::Narrow() {
  const auto isInside = [&](double u) { return below_.u < u && u <= above_.u; };
  const double line = nearest_.CrossingOfLine();
  const double parabola = nearest_.CrossingOfParabola();
  if (isInside(line) && isInside(parabola)) {
    const double root = shape_.SizeAt(parabola);
    const double error = std::fabs(root - shape_.SizeAt(line));
    const double reach = std::max({tolerance_ / 2, 2 * shape_.Noise(root) / nearest_.Rise(), 4e-16 * root});
    if (error <= reach) return CloseIn(root, reach + error);
    Visit(root);
    return false;
  }
  if (isInside(line)) {
    Visit(shape_.SizeAt(line));
    return false;
  }
  const double ratio = above_.u / below_.u;
  const double middle = ratio > 8 ? below_.u * std::sqrt(ratio) : below_.u + (above_.u - below_.u) / 2;
  if (!(below_.u < middle && middle < above_.u)) return true;  // the doubles between are used up
  Visit(shape_.SizeAt(middle));
  return false;
}

/// Evaluates on either side of the root unless the sign is known there. True when it lies between.
bool Locator::CloseIn(double root, double reach) {
  if (open_.from < root - reach) Visit(root - reach);
  if (open_.to > root + reach) Visit(root + reach);
  return root - reach <= below_.x && above_.x <= root + reach;
}

/// The bisection asks for the sign at many points, and evaluates only those at which it is open. The locator runs once
/// a sign beyond the ends is asked for.
Answer SolveIncreasing(double lower, double upper, double tolerance, RootObjective objective, const Shape& shape,
                       Stop stop) {
  if (!std::isfinite(lower) || !std::isfinite(upper)) return NoValue::NotReached;
  const Evaluated upperEnd{upper, objective(upper)};
  const Evaluated lowerEnd{lower, objective(lower)};
  const bool canLocate = lower > 0 && !std::isnan(upperEnd.value) && !std::isnan(lowerEnd.value);

  std::optional<OpenInterval> open;
  const auto decided = [&](double x) {
    if (!open) open = canLocate ? Locator(objective, shape, tolerance).Enclose(lowerEnd, upperEnd) : OpenInterval{};
    if (x <= open->from) return -1.0;
    if (x >= open->to) return 1.0;
    return objective(x);
  };
  return SolveContinuousFrom(lowerEnd, upperEnd, tolerance, decided, stop);
}

}  // namespace

Answer SolveIncreasingPower(double lower, double upper, double tolerance, FunctionView<double(double)> powerAt,
                            double target, Stop stop) {
  return SolveIncreasing(
      lower, upper, tolerance, [&](double x) { return powerAt(x) - target; }, Shape::PowerLess(target), stop);
}

// At each level t^2 falls as the degrees of freedom grow, so the difference grows where neither coefficient is
// negative. Where one is, a difference that is negative at the lower end is so at every size, which is decided as well.
Answer SolveHalfWidth(double lower, double upper, double tolerance, const HalfWidthEquation& equation) {
  const auto excess = [&](double x) { return equation.Excess(x); };
  return equation.dfGrows ? SolveIncreasing(lower, upper, tolerance, excess, Shape::RisingBy(equation.slope), {})
                          : SolveContinuous(lower, upper, tolerance, excess, {});
}

}  // namespace kelpower
