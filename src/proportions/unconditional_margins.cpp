#include "proportions/unconditional_margins.h"

#include <algorithm>
#include <cmath>

#include "proportions/independent_design.h"
#include "proportions/independent_masses.h"
#include "proportions/level_over_nuisance.h"
#include "proportions/score_region.h"

namespace kelpower::proportions {

namespace {

bool IsGroup(double size) { return size >= 1 && size <= UnconditionalMarginTest::largestGroup; }

bool IsLevel(double alpha) { return alpha > 0 && alpha < 1; }

bool IsLimitOfDifferences(double limit) { return std::isinf(limit) || std::fabs(limit) < 1; }

/// The test of an upper limit is that of a lower one in failures: 1 - p2 is above 1 - p1 by more than -limit.
TableRegion UpperRegion(const GroupSizes& sizes, const TableRegion& ofFailures) {
  TableRegion region;
  for (auto row = ofFailures.rbegin(); row != ofFailures.rend(); ++row) {
    region.push_back({sizes.n1 - row->most, sizes.n1});
  }
  return region;
}

TableRegion Common(const TableRegion& a, const TableRegion& b) {
  TableRegion region;
  for (std::size_t i = 0; i < a.size(); ++i) {
    region.push_back({std::max(a[i].least, b[i].least), std::min(a[i].most, b[i].most)});
  }
  return region;
}

TableRegion RegionOf(const ContrastLimits& limits, double alpha, const GroupSizes& sizes) {
  if (!limits.HasUpper()) return ScoreRegion(sizes, limits.lower, alpha);
  const TableRegion ofFailures = ScoreRegion(sizes, -limits.upper, alpha);
  const TableRegion below = UpperRegion(sizes, ofFailures);
  if (!limits.HasLower()) return below;
  const bool isSymmetric = limits.lower == -limits.upper;
  return Common(isSymmetric ? ofFailures : ScoreRegion(sizes, limits.lower, alpha), below);
}

double ProbabilityOf(const TableRegion& region, const GroupSizes& sizes, const TwoProportions& at) {
  const auto massesOf = [](std::int64_t n, double p) { return BinomialMasses::Of(GroupSize::Of(double(n)), p); };
  const BinomialTails tails1(massesOf(sizes.n1, at.p1));
  const BinomialMasses masses2 = massesOf(sizes.n2, at.p2);
  double sum = 0;
  for (std::int64_t x2 = masses2.first; x2 <= masses2.Last(); ++x2) {
    const RowRange& row = region[static_cast<std::size_t>(x2)];
    if (row.least > row.most) continue;
    // By the tail that ends inside, so that a small power keeps its digits.
    const double inside = row.least <= 0         ? tails1.Below(row.most + 1)
                          : row.most >= sizes.n1 ? tails1.AtLeast(row.least)
                                                 : tails1.Below(row.most + 1) - tails1.Below(row.least);
    sum += masses2.At(x2) * std::max(0.0, inside);
  }
  return std::min(sum, 1.0);
}

}  // namespace

UnconditionalMarginTest::UnconditionalMarginTest(const ContrastLimits& limits, double alpha, double size1, double size2)
    : limits_(limits) {
  if (limits.contrast != Contrast::Difference || limits.AreRefused()) return;
  if (!IsGroup(size1) || !IsGroup(size2) || !IsLevel(alpha)) return;
  if (!IsLimitOfDifferences(limits.lower) || !IsLimitOfDifferences(limits.upper)) return;
  sizes_ = {static_cast<std::int64_t>(size1), static_cast<std::int64_t>(size2)};
  region_ = RegionOf(limits, alpha, sizes_);
}

Answer UnconditionalMarginTest::Power(const TwoProportions& proportions) const {
  if (!region_) return NoValue::Refused;
  if (!(proportions.p1 > 0 && proportions.p1 < 1)) return NoValue::Refused;
  if (!(proportions.p2 > 0 && proportions.p2 < 1)) return NoValue::Refused;
  return ProbabilityOf(*region_, sizes_, proportions);
}

Answer UnconditionalMarginTest::AttainedLevel() const {
  if (!region_) return NoValue::Refused;
  double level = 0;
  if (limits_.HasLower()) level = LevelOverNuisance(sizes_, limits_.lower).Largest(*region_);
  if (limits_.HasUpper()) level = std::max(level, LevelOverNuisance(sizes_, limits_.upper).Largest(*region_));
  return level;
}

}  // namespace kelpower::proportions
