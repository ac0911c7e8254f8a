#include "anova/group_sizes.h"

#include <cmath>
#include <cstddef>

#include "frame/increasing_search.h"
#include "kelcommon/kel_mv.h"

namespace kelpower {

namespace {

double SmallestTotal(int numGroups) { return 2.0 * numGroups; }

double FirstUpperTotal(int numGroups) { return SmallestTotal(numGroups) + 400; }

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

double SolveTotalForPower(int numGroups, FunctionView<double(double)> powerAt, double power) {
  constexpr double kTolerance = 1e-6;
  return SolveIncreasingPower(SmallestTotal(numGroups), FirstUpperTotal(numGroups), kTolerance, powerAt, power,
                              nullptr);
}

double SolveTotalForHalfWidth(int numGroups, double slope, double weight, double alpha) {
  constexpr double kTolerance = 1e-9;
  const auto dfAt = [=](double size) { return size - numGroups; };
  return SolveHalfWidth(SmallestTotal(numGroups), FirstUpperTotal(numGroups), kTolerance, {slope, weight, alpha, dfAt});
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
