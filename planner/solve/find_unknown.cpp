#include "solve/find_unknown.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "frame/bracketed_root.h"

namespace planner {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

// Of an uneven power this many points are looked at beyond the place found.
constexpr int pointsBeyond = 256;

// More than lie between any two doubles, as the steps grow.
constexpr int mostSteps = 100;

/// From the end at which the target is missed to the one at which it is reached, if anywhere.
struct Way {
  double from;
  double to;
  bool endsAllowed;  // `to` may be taken itself
};

class Search {
public:
  Search(const Unknown& unknown, double target, kelpower::FunctionView<double(double)> valueAt)
      : isPower_(unknown.target == Question::Power), target_(target), valueAt_(valueAt) {}

  /// Positive or zero where the target is reached.
  double Excess(double at) {
    const double value = valueAt_(at);
    if (std::isnan(value)) return value;
    const double excess = isPower_ ? value - target_ : target_ - value;
    if (!nearest_ || excess > nearestExcess_) {
      nearest_ = Found{at, value};
      nearestExcess_ = excess;
    }
    return excess;
  }

  bool IsReached(double at) { return Excess(at) >= 0; }

  UnknownSearch Along(const Way& way, bool isUneven);

private:
  Found At(double at) { return {at, valueAt_(at)}; }
  double Start(const Way& way);
  std::optional<double> FirstReached(const Way& way, double start);
  std::optional<double> FirstReachedBefore(double gap, double at);
  std::optional<double> LastMissed(const Way& way, double start);
  double Between(double missed, double reached);
  double ForGood(double reached, double last);

  bool isPower_;
  double target_;
  kelpower::FunctionView<double(double)> valueAt_;
  std::optional<Found> nearest_;
  double nearestExcess_ = -infinity;
};

/// A place between the ends to start from.
double Middle(const Way& way) {
  if (std::isinf(way.to)) return way.from + std::copysign(std::max(1.0, std::fabs(way.from)), way.to);
  if (std::isinf(way.from)) return way.to - std::copysign(std::max(1.0, std::fabs(way.to)), -way.from);
  return way.from / 2 + way.to / 2;
}

/// Nearer to the end, by ever larger shares of the way.
double Onwards(double at, double from, double end, int step) {
  const double factor = std::ldexp(1, std::min(step, 60));
  if (!std::isinf(end)) return end - (end - at) / factor;
  const double origin = std::isinf(from) ? 0 : from;
  return origin + (at - origin) * factor;
}

std::optional<double> Search::FirstReached(const Way& way, double start) {
  if (way.endsAllowed && std::isfinite(way.to) && IsReached(way.to)) return way.to;
  double at = start;
  for (int step = 1; step < mostSteps; ++step) {
    const double next = Onwards(at, way.from, way.to, step);
    if (next == at || next == way.to || !std::isfinite(next)) break;
    const double excess = Excess(next);
    if (std::isnan(excess)) return FirstReachedBefore(next, at);
    at = next;
    if (excess >= 0) return at;
  }
  return std::nullopt;
}

/// Towards the edge of a gap, where the design does not exist any more.
std::optional<double> Search::FirstReachedBefore(double gap, double at) {
  for (int step = 0; step < mostSteps; ++step) {
    const double middle = at + (gap - at) / 2;
    if (middle == at || middle == gap) break;
    const double excess = Excess(middle);
    if (excess >= 0) return middle;
    (std::isnan(excess) ? gap : at) = middle;
  }
  return std::nullopt;
}

/// A place where the design exists, from the middle of the way towards its start.
double Search::Start(const Way& way) {
  const double middle = Middle(way);
  double at = middle;
  for (int step = 1; step < mostSteps && std::isnan(Excess(at)); ++step) {
    const double next = Onwards(at, way.to, way.from, 1);
    if (next == at) return middle;
    at = next;
  }
  return at;
}

std::optional<double> Search::LastMissed(const Way& way, double start) {
  double at = start;
  for (int step = 1; step < mostSteps; ++step) {
    const double next = Onwards(at, way.to, way.from, step);
    if (next == at || next == way.from || !std::isfinite(next)) break;
    at = next;
    if (Excess(at) < 0) return at;
  }
  return std::nullopt;
}

double Search::Between(double missed, double reached) {
  const double root = kelpower::BracketedRoot([&](double at) { return Excess(at); }, missed, reached).ValueOr(reached);
  // The root may be its neighbour on the side where the target is missed.
  double at = root;
  for (double share = 1e-16; share < 1; share *= 2) {
    if (IsReached(at)) return at;
    at = root + (reached - root) * share;
  }
  return reached;
}

/// Where the target is reached for good, on a grid from the place where it is first reached to the last one.
double Search::ForGood(double reached, double last) {
  double missed = std::numeric_limits<double>::quiet_NaN();
  double next = last;
  for (int i = pointsBeyond; i > 0; --i) {
    const double at = reached + (last - reached) * i / pointsBeyond;
    if (Excess(at) < 0) {
      missed = at;
      break;
    }
    next = at;
  }
  return std::isnan(missed) ? reached : Between(missed, next);
}

UnknownSearch Search::Along(const Way& way, bool isUneven) {
  const double middle = Start(way);
  const std::optional<double> reached = IsReached(middle) ? middle : FirstReached(way, middle);
  if (!reached) return {std::nullopt, nearest_};
  const bool isMiddle = *reached == middle;
  const std::optional<double> missed = isMiddle ? LastMissed(way, middle) : std::optional(middle);
  if (!missed) return {std::nullopt, nearest_, true};
  double at = Between(*missed, *reached);
  if (isUneven) {
    const double last = std::isinf(way.to) ? *reached : way.to - (way.to - *reached) * 1e-9;
    at = ForGood(at, last);
  }
  return {At(at), nearest_};
}

Way WayOf(const Unknown& unknown, const Parameter& parameter, const Inputs& inputs) {
  const bool isBelow = unknown.pieceBelow && inputs.Has("below") && inputs.Flag("below");
  const Limits& limits = parameter.limits;
  Piece piece{limits.low, limits.high};
  if (unknown.piece) piece = isBelow ? unknown.pieceBelow(inputs) : unknown.piece(inputs);
  const bool rises = (unknown.trend == Trend::Rises) != isBelow;
  const bool reachedHigh = rises == (unknown.target == Question::Power);
  if (reachedHigh) return {piece.low, piece.high, piece.high != limits.high || limits.highAllowed};
  return {piece.high, piece.low, piece.low != limits.low || limits.lowAllowed};
}

}  // namespace

UnknownSearch FindUnknown(const Unknown& unknown, const Parameter& parameter, const Inputs& inputs, double target,
                          bool isUneven, kelpower::FunctionView<double(double)> valueAt) {
  return Search(unknown, target, valueAt).Along(WayOf(unknown, parameter, inputs), isUneven);
}

}  // namespace planner
