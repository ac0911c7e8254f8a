#include "frame/bracketed_root.h"

#include <algorithm>
#include <cmath>

namespace kelpower {

namespace {

constexpr int mostEvaluations = 2200;  // bisection alone needs 64 for ends of one magnitude, and 2,100 at most
constexpr double relativeTolerance = 2e-16;
constexpr double smallestStep = 1e-300;

struct Point {
  double x;
  double value;
};

bool HaveOppositeSigns(const Point& a, const Point& b) { return (a.value < 0) != (b.value < 0); }

/// Where between a and b to go next, as a share of the way from a: where a parabola through the three points, x over
/// the value, is monotone, at its zero, otherwise half way.
double ShareOfWay(const Point& a, const Point& b, const Point& c) {
  const double xi = (a.x - b.x) / (c.x - b.x);
  const double phi = (a.value - b.value) / (c.value - b.value);
  if (!(phi * phi < xi && (1 - phi) * (1 - phi) < 1 - xi)) return 0.5;
  return a.value / (b.value - a.value) * (c.value / (b.value - c.value)) +
         (c.x - a.x) / (b.x - a.x) * (a.value / (c.value - a.value)) * (b.value / (c.value - b.value));
}

}  // namespace

Answer BracketedRoot(FunctionView<double(double)> f, double lower, double upper) {
  if (!std::isfinite(lower) || !std::isfinite(upper)) return NoValue::NotReached;
  Point a{lower, f(lower)};
  Point b{upper, f(upper)};
  if (a.value == 0) return a.x;
  if (b.value == 0) return b.x;
  if (std::isnan(a.value) || std::isnan(b.value) || !HaveOppositeSigns(a, b)) return NoValue::NotReached;

  double share = 0.5;
  for (int i = 2; i < mostEvaluations; ++i) {
    const double x = a.x + share * (b.x - a.x);
    const Point next{x, f(x)};
    if (std::isnan(next.value)) return NoValue::NotReached;
    Point previous = a;
    if (HaveOppositeSigns(next, a)) {
      previous = b;
      b = a;
    }
    a = next;

    const Point& best = std::fabs(a.value) < std::fabs(b.value) ? a : b;
    const double width = std::fabs(b.x - a.x);
    const double step = 2 * relativeTolerance * std::fabs(best.x) + smallestStep;
    if (best.value == 0 || width <= step) return best.x;
    share = std::clamp(ShareOfWay(a, b, previous), step / (2 * width), 1 - step / (2 * width));
    if (std::isnan(share)) share = 0.5;
  }
  return std::fabs(a.value) < std::fabs(b.value) ? a.x : b.x;
}

}  // namespace kelpower
