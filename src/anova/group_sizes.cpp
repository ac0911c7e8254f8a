#include "anova/group_sizes.h"

#include <cmath>
#include <cstddef>

#include "kelcommon/kel_mv.h"

namespace kelpower {

namespace {

constexpr double kPowerTolerance = 1e-6;
constexpr double kHalfWidthTolerance = 1e-9;

double SolveTotal(int numGroups, double tolerance, RootObjective objective) {
  const double lower = 2.0 * numGroups;
  return SolveContinuous(lower, lower + 400, tolerance, objective, nullptr);
}

double StoreRoundedUp(int numGroups, DoubleVector& groupSizes, FunctionView<double(int group)> unroundedSize) {
  for (int i = 0; i < numGroups; ++i) {
    const double size = std::ceil(unroundedSize(i));
    groupSizes[static_cast<std::size_t>(i)] = size > 2 ? size : 2;
  }
  return SampleSizeTotal(numGroups, groupSizes.data());
}

}  // namespace

void ResizeToMissing(DoubleVector& groupSizes, int numGroups) {
  groupSizes.assign(static_cast<std::size_t>(numGroups), KelCommon::KelMV::Missing());
}

DoubleVector SharesOf(int numGroups, const double* groupRatios) {
  const double sum = SampleSizeTotal(numGroups, groupRatios);
  DoubleVector shares(groupRatios, groupRatios + numGroups);
  for (double& share : shares) share /= sum;
  return shares;
}

double SolveTotalForPower(int numGroups, RootObjective objective) {
  return SolveTotal(numGroups, kPowerTolerance, objective);
}

double SolveTotalForHalfWidth(int numGroups, RootObjective objective) {
  return SolveTotal(numGroups, kHalfWidthTolerance, objective);
}

double StoreByShares(double total, int numGroups, const double* groupRatios, DoubleVector& groupSizes) {
  const DoubleVector shares = SharesOf(numGroups, groupRatios);
  return StoreRoundedUp(numGroups, groupSizes, [&](int i) { return total * shares[static_cast<std::size_t>(i)]; });
}

double StoreByRatios(double total, int numGroups, const double* groupRatios, DoubleVector& groupSizes) {
  const double sum = SampleSizeTotal(numGroups, groupRatios);
  return StoreRoundedUp(numGroups, groupSizes, [&](int i) { return total * groupRatios[i] / sum; });
}

}  // namespace kelpower
