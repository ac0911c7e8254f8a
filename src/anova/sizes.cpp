#include "anova/sizes.h"

#include <cmath>
#include <cstddef>

#include "frame/increasing_search.h"

namespace kelpower::anova {

namespace {

double SmallestTotal(int numGroups) { return 2.0 * numGroups; }

double FirstUpperTotal(int numGroups) { return SmallestTotal(numGroups) + 400; }

std::vector<double> RoundedUp(int numGroups, FunctionView<double(int group)> unroundedSize) {
  std::vector<double> sizes;
  sizes.reserve(static_cast<std::size_t>(numGroups));
  for (int i = 0; i < numGroups; ++i) {
    const double size = std::ceil(unroundedSize(i));
    sizes.push_back(size > 2 ? size : 2);
  }
  return sizes;
}

}  // namespace

std::vector<double> SharesOf(PerGroup ratios) {
  const double sum = Sum(ratios);
  std::vector<double> shares(ratios.begin(), ratios.end());
  for (double& share : shares) share /= sum;
  return shares;
}

Answer TotalForPower(int numGroups, FunctionView<Answer(double)> powerAt, double power) {
  constexpr double tolerance = 1e-6;
  const auto valueAt = [&](double total) { return powerAt(total).ValueOr(belowEveryPower); };
  return SolveIncreasingPower(SmallestTotal(numGroups), FirstUpperTotal(numGroups), tolerance, valueAt, power, {});
}

Answer TotalForHalfWidth(int numGroups, double slope, double weight, double alpha) {
  constexpr double tolerance = 1e-9;
  const auto dfAt = [=](double size) { return size - numGroups; };
  return SolveHalfWidth(SmallestTotal(numGroups), FirstUpperTotal(numGroups), tolerance, {slope, weight, alpha, dfAt});
}

std::vector<double> SpreadByShares(double total, PerGroup ratios) {
  const std::vector<double> shares = SharesOf(ratios);
  return RoundedUp(ratios.Count(), [&](int i) { return total * shares[static_cast<std::size_t>(i)]; });
}

std::vector<double> SpreadByRatios(double total, PerGroup ratios) {
  const double sum = Sum(ratios);
  return RoundedUp(ratios.Count(), [&](int i) { return total * ratios[i] / sum; });
}

}  // namespace kelpower::anova
