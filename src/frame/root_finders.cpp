#include "frame/root_finders.h"

#include <cmath>
#include <limits>
#include <variant>

namespace kelpower {

namespace {

constexpr double zeroTolerance = 1e-14;
constexpr double upperCeiling = std::numeric_limits<double>::max() / 2;  // doubling beyond it would overflow

struct Bracket {
  double lower;
  double upper;
};

bool IsZero(double value) { return std::fabs(value) < zeroTolerance; }

/// A bracket of the root, or an answer that needs no bisection.
std::variant<Bracket, Answer> FindBracket(Evaluated lower, Evaluated upper, RootObjective objective, Stop stop) {
  if (IsZero(upper.value)) return Answer(upper.x);
  if (lower.value >= 0) return Answer(lower.x);

  double previousValue = lower.value;
  while (previousValue * upper.value > 0) {
    lower = upper;
    if (upper.x > upperCeiling) return Answer(NoValue::NotReached);
    if (AnswersStop(stop)) return Answer(NoValue::Stopped);
    upper.x = 2 * upper.x;
    if (!(upper.x > lower.x)) return Answer(NoValue::NotReached);  // zero and negative ends do not grow by doubling
    previousValue = upper.value;
    upper.value = objective(upper.x);
    if (IsZero(upper.value)) return Answer(upper.x);
  }
  return Bracket{lower.x, upper.x};
}

bool AreFinite(double lower, double upper) { return std::isfinite(lower) && std::isfinite(upper); }

}  // namespace

Answer SolveContinuousFrom(const Evaluated& lowerEnd, const Evaluated& upperEnd, double tolerance,
                           RootObjective objective, Stop stop) {
  if (!AreFinite(lowerEnd.x, upperEnd.x)) return NoValue::NotReached;
  const auto found = FindBracket(lowerEnd, upperEnd, objective, stop);
  if (const Answer* answer = std::get_if<Answer>(&found)) return *answer;

  auto [lower, upper] = std::get<Bracket>(found);
  double width = upper - lower;
  while (true) {
    if (AnswersStop(stop)) return NoValue::Stopped;
    width *= 0.5;
    const double mid = lower + width;
    if (mid == lower) return lower;  // the doubles between the ends are used up
    const double value = objective(mid);
    if (value <= 0) lower = mid;
    if (std::fabs(width) < tolerance || IsZero(value)) return lower;
  }
}

Answer SolveContinuous(double lower, double upper, double tolerance, RootObjective objective, Stop stop) {
  if (!AreFinite(lower, upper)) return NoValue::NotReached;
  const Evaluated upperEnd{upper, objective(upper)};
  if (IsZero(upperEnd.value)) return upper;
  return SolveContinuousFrom({lower, objective(lower)}, upperEnd, tolerance, objective, stop);
}

Answer SolvePower(double lower, double upper, double tolerance, FunctionView<double(double)> powerAt, double target,
                  Stop stop) {
  return SolveContinuous(
      lower, upper, tolerance, [&](double x) { return powerAt(x) - target; }, stop);
}

Answer SolveInteger(double lowerEnd, double upperEnd, RootObjective objective, Stop stop) {
  if (!AreFinite(lowerEnd, upperEnd)) return NoValue::NotReached;
  const double upperValue = objective(upperEnd);
  if (IsZero(upperValue)) return upperEnd;
  const auto found = FindBracket({lowerEnd, objective(lowerEnd)}, {upperEnd, upperValue}, objective, stop);
  if (const Answer* answer = std::get_if<Answer>(&found)) return *answer;

  auto [lower, upper] = std::get<Bracket>(found);
  double width = upper - lower;
  double value;
  do {
    if (AnswersStop(stop)) return NoValue::Stopped;
    width *= 0.5;
    const double step = std::floor(width);
    const double mid = lower + step;
    if (step >= 1 && mid == lower) return lower;
    value = objective(mid);
    if (value <= 0) lower = mid;
    if (IsZero(value)) return lower;
  } while (std::fabs(width) >= 1);

  while (value < 0) {
    if (AnswersStop(stop)) return NoValue::Stopped;
    if (lower + 1 == lower) return lower;
    lower += 1;
    value = objective(lower);
  }
  return lower;
}

Answer SolveIntegerSmallest(Answer upper, RootObjective objective, Stop stop) {
  // Every pass that goes on found something smaller than all before it, so the last result is the smallest one.
  Answer smallest = upper;
  while (true) {
    if (AnswersStop(stop)) return upper;
    if (!smallest || !std::isfinite(*smallest)) return smallest;
    const Answer found = SolveInteger(1.0, *smallest, objective, stop);
    if (!found || *found >= *smallest) return smallest;
    smallest = found;
  }
}

}  // namespace kelpower
