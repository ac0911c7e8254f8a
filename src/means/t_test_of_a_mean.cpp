#include "means/t_test_of_a_mean.h"

#include "frame/increasing_search.h"
#include "frame/root_finders.h"

namespace kelpower::means {

namespace {

constexpr double smallestSize = 2;
constexpr double firstUpperSize = 400;  // doubled until the bracket holds the root
constexpr double sizeTolerance = 1e-9;

}  // namespace

Answer SizeForPower(PowerAtSize powerAt, double power) {
  const auto valueAt = [&](double size) { return powerAt(size).ValueOr(belowEveryPower); };
  return SolveIncreasingPower(smallestSize, firstUpperSize, sizeTolerance, valueAt, power, {});
}

Answer SizeForUnevenPower(PowerAtSize powerAt, double power) {
  const auto valueAt = [&](double size) { return powerAt(size).ValueOr(belowEveryPower); };
  return SolvePower(smallestSize, firstUpperSize, sizeTolerance, valueAt, power, {});
}

Answer SizeForHalfWidth(const HalfWidthEquation& equation) {
  return SolveHalfWidth(smallestSize, firstUpperSize, sizeTolerance, equation);
}

}  // namespace kelpower::means
