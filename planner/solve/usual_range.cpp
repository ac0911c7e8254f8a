#include "solve/usual_range.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace planner {
namespace {

constexpr double goodPower = 0.8;
constexpr double nearLevel = 0.05;    // above it
constexpr double turn = 0.005;        // in the power; less is rounding, or a tooth of an exact test
constexpr double manyTimes = 5;       // the design's size or half-width
constexpr double farthest = 30;       // times the design's place
constexpr double largestUsual = 1e8;  // of sizes

/// The place between `good`, where `holds` is true, and `bad`, where it is not.
template <typename Holds>
double Border(double good, double bad, const Holds& holds) {
  constexpr int halvings = 40;
  for (int i = 0; i < halvings; ++i) {
    const double middle = good + (bad - good) / 2;
    (holds(middle) ? good : bad) = middle;
  }
  return good;
}

/// The lowest of a valley between two places.
double Lowest(double from, double to, const ValueAlong& value) {
  constexpr int thirds = 40;
  for (int i = 0; i < thirds; ++i) {
    const double a = from + (to - from) / 3;
    const double b = to - (to - from) / 3;
    if (value(a) < value(b)) {
      to = b;
    } else {
      from = a;
    }
  }
  return from + (to - from) / 2;
}

/// Goes from the design towards one end of an axis until there is nothing more to see.
class Walk {
public:
  Walk(const RangeRequest& request, const ValueAlong& value, double end)
      : request_(request), value_(value), end_(end), start_(value(request.design)) {}

  double End() {
    constexpr double first = 1e-5;
    constexpr double growth = 1.2;
    const double scale = Scale();
    const double direction = end_ > request_.design ? 1 : -1;
    Place last{request_.design, start_};
    Place lowest = last;
    double beforeLowest = last.at;
    double levelReached = 0;
    for (double offset = first * scale; offset < farthest * scale; offset *= growth) {
      Place next{request_.design + direction * offset, 0};
      const bool isLast = direction * (end_ - next.at) <= 0;
      if (isLast) next.at = end_;
      next.value = value_(next.at);
      if (std::isnan(next.value)) return LastValid(last.at, next.at);
      if (request_.quantity != Quantity::Power) {
        if (IsFar(next.value)) return next.at;
      } else {
        if (next.value > lowest.value + turn && lowest.value < start_ - turn) {
          return Lowest(beforeLowest, next.at, value_);
        }
        if (next.value >= request_.high && last.value < request_.high) {
          return Border(next.at, last.at, [&](double at) { return value_(at) >= request_.high; });
        }
        if (levelReached == 0 && next.value <= request_.alpha + nearLevel) levelReached = offset;
        // The null value may lie close by.
        if (levelReached > 0 && offset > 1.8 * levelReached) return request_.design + direction * levelReached;
        if (next.value < lowest.value) {
          beforeLowest = lowest.at;
          lowest = next;
        }
      }
      last = next;
      if (isLast) return end_;
    }
    if (levelReached > 0) return request_.design + direction * levelReached;
    return request_.design + direction * scale;
  }

private:
  struct Place {
    double at;
    double value;
  };

  double Scale() const {
    const double span = request_.allowed.to - request_.allowed.from;
    if (request_.design != 0) return std::abs(request_.design);
    return std::isfinite(span) && span < 1e3 ? span / 2 : 1;
  }

  bool IsFar(double value) const { return value > manyTimes * start_ || value < start_ / manyTimes; }

  double LastValid(double valid, double beyond) const {
    return Border(valid, beyond, [&](double at) { return !std::isnan(value_(at)); });
  }

  const RangeRequest& request_;
  const ValueAlong& value_;
  double end_;
  double start_;
};

double UnitOf(double span) {
  const double power = std::pow(10.0, std::floor(std::log10(span / 20)));
  for (double unit : {power, 2 * power, 5 * power}) {
    if (span / unit <= 20) return unit;
  }
  return 10 * power;
}

/// The next round numbers outside the range, as far as `allowed` goes.
Range Rounded(const Range& range, const Range& allowed) {
  constexpr double slack = 1e-6;
  const double unit = UnitOf(range.to - range.from);
  const double from = unit * std::floor(range.from / unit + slack);
  const double to = unit * std::ceil(range.to / unit - slack);
  return {std::max(from, allowed.from), std::min(to, allowed.to)};
}

/// From the smallest size with a power to that of a high one.
Range RangeOfSizes(const RangeRequest& request, const ValueAlong& value) {
  const double design = request.design;
  const auto holds = [&](double at) { return !std::isnan(value(std::round(at))); };
  double from = request.allowed.from;
  if (!holds(from)) from = std::ceil(Border(design, from, holds));
  if (request.quantity == Quantity::HalfWidth) {
    return {std::max(from, std::floor(design / manyTimes)), std::min(3 * design, request.allowed.to)};
  }
  const auto isHigh = [&](double at) { return value(std::round(at)) >= request.high; };
  double low = design;
  double high = design;
  while (!isHigh(high)) {
    low = high;
    high *= 2;
    if (high > std::min(request.allowed.to, largestUsual) || !holds(high)) {
      const bool isWorthIt = value(std::round(low)) >= goodPower;
      return {from, std::min(std::max(isWorthIt ? low : 0, 2 * design), request.allowed.to)};
    }
  }
  if (high > low) high = std::ceil(Border(high, low, isHigh));
  return {from, std::max(high, std::ceil(1.1 * design))};
}

}  // namespace

Range AllowedOn(const Axis& axis, const Inputs& design) {
  Range allowed{axis.limits.low, axis.limits.high};
  if (axis.scale) {
    const Range scale = axis.scale(design);
    allowed = {std::max(allowed.from, scale.from), std::min(allowed.to, scale.to)};
  }
  return allowed;
}

Range UsualRange(const RangeRequest& request, const ValueAlong& value) {
  const Axis& axis = *request.axis;
  const double design = request.design;
  if (axis.usual) return {std::min(axis.usual->from, design / 2), std::max(axis.usual->to, design)};
  if (axis.isOfSizes) {
    const Range sizes = RangeOfSizes(request, value);
    return axis.spacing == Spacing::Totals ? sizes : Rounded({sizes.from, sizes.to}, {sizes.from, request.allowed.to});
  }
  Range range{Walk(request, value, request.allowed.from).End(), Walk(request, value, request.allowed.to).End()};
  if (axis.spacing == Spacing::Whole) {
    range = {std::floor(range.from), std::ceil(range.to)};
    return {std::max(range.from, request.allowed.from), std::min(range.to, request.allowed.to)};
  }
  if (!(range.from < range.to) || !std::isfinite(range.to - range.from)) return {design, design};
  return Rounded(range, request.allowed);
}

}  // namespace planner
