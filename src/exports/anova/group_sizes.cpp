#include "exports/anova/group_sizes.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "anova/sizes.h"
#include "exports/sentinels.h"
#include "kelcommon/kel_mv.h"

namespace kelpower::exports {

namespace {

double Store(const std::vector<double>& sizes, DoubleVector& groupSizes) {
  std::copy(sizes.begin(), sizes.end(), groupSizes.begin());
  return anova::Sum(sizes);
}

}  // namespace

void ResizeToMissing(DoubleVector& groupSizes, int numGroups) {
  groupSizes.assign(static_cast<std::size_t>(numGroups), KelCommon::KelMV::Missing());
}

// The missing value is so low that each share of it is raised to 2.

double StoreByShares(Answer total, anova::PerGroup ratios, DoubleVector& groupSizes) {
  return Store(anova::SpreadByShares(OrMissing(total), ratios), groupSizes);
}

double StoreByRatios(Answer total, anova::PerGroup ratios, DoubleVector& groupSizes) {
  return Store(anova::SpreadByRatios(OrMissing(total), ratios), groupSizes);
}

}  // namespace kelpower::exports
