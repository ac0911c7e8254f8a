#include "frame/root_finders.h"

#include <cmath>
#include <limits>
#include <optional>

#include "kelcommon/kel_mv.h"

namespace kelpower {

using KelCommon::KelMV;

namespace {

constexpr double kZeroTolerance = 1e-14;
constexpr double kUpperCeiling = std::numeric_limits<double>::max() / 2;  // doubling beyond it would overflow

struct Bracket {
  double lower;
  double upper;
};

bool IsZero(double value) { return std::fabs(value) < kZeroTolerance; }

bool AnswersStop(StopRequest* stop) { return stop != nullptr && stop->ShouldStop(); }

/// Finds a bracket of the root. A value returned at once, a root or missing, goes into `result` instead.
std::optional<Bracket> FindBracket(double lower, double upper, RootObjective objective, StopRequest* stop,
                                   double& result) {
  result = KelMV::Missing();
  if (!std::isfinite(lower) || !std::isfinite(upper)) return std::nullopt;

  double upperValue = objective(upper);
  if (IsZero(upperValue)) {
    result = upper;
    return std::nullopt;
  }
  const double lowerValue = objective(lower);
  if (lowerValue >= 0) {
    result = lower;
    return std::nullopt;
  }

  double previousValue = lowerValue;
  while (previousValue * upperValue > 0) {
    lower = upper;
    if (upper > kUpperCeiling) return std::nullopt;
    if (AnswersStop(stop)) return std::nullopt;
    upper = 2 * upper;
    if (!(upper > lower)) return std::nullopt;  // zero and negative ends do not grow by doubling
    previousValue = upperValue;
    upperValue = objective(upper);
    if (IsZero(upperValue)) {
      result = upper;
      return std::nullopt;
    }
  }
  return Bracket{lower, upper};
}

}  // namespace

double SolveContinuous(double lower, double upper, double tolerance, RootObjective objective, StopRequest* stop) {
  double result;
  const std::optional<Bracket> bracket = FindBracket(lower, upper, objective, stop, result);
  if (!bracket) return result;

  lower = bracket->lower;
  double width = bracket->upper - bracket->lower;
  while (true) {
    if (AnswersStop(stop)) return KelMV::Missing();
    width *= 0.5;
    const double mid = lower + width;
    if (mid == lower) return lower;  // the doubles between the ends are used up
    const double value = objective(mid);
    if (value <= 0) lower = mid;
    if (std::fabs(width) < tolerance || IsZero(value)) return lower;
  }
}

double SolveInteger(double lower, double upper, RootObjective objective, StopRequest* stop) {
  double result;
  const std::optional<Bracket> bracket = FindBracket(lower, upper, objective, stop, result);
  if (!bracket) return result;

  lower = bracket->lower;
  double width = bracket->upper - bracket->lower;
  double value;
  do {
    if (AnswersStop(stop)) return KelMV::Missing();
    width *= 0.5;
    const double step = std::floor(width);
    const double mid = lower + step;
    if (step >= 1 && mid == lower) return lower;
    value = objective(mid);
    if (value <= 0) lower = mid;
    if (IsZero(value)) return lower;
  } while (std::fabs(width) >= 1);

  while (value < 0) {
    if (AnswersStop(stop)) return KelMV::Missing();
    if (lower + 1 == lower) return lower;
    lower += 1;
    value = objective(lower);
  }
  return lower;
}

double SolveIntegerSmallest(double upper, RootObjective objective, StopRequest* stop) {
  // Every pass that goes on found something smaller than all before it, so the last result is the smallest one.
  const double start = upper;
  double smallest = upper;
  while (true) {
    if (AnswersStop(stop)) return start;
    if (KelMV::IsMissing(smallest) || !std::isfinite(smallest)) return smallest;
    const double found = SolveInteger(1.0, smallest, objective, stop);
    if (found >= smallest || KelMV::IsMissing(found)) return smallest;
    smallest = found;
  }
}

}  // namespace kelpower
