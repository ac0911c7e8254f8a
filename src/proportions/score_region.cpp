#include "proportions/score_region.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "kelcommon/kel_dist_fun.h"
#include "proportions/constrained_proportions.h"
#include "proportions/level_over_nuisance.h"

namespace kelpower::proportions {

namespace {

// Statistics that are equal in exact arithmetic differ by less, others by more.
constexpr double tie = 1e-9;

/// A table outside a region, next to be taken in.
struct Candidate {
  double statistic;
  std::int64_t x1;
  std::int64_t x2;
};

/// The tables whose statistic is at least `critical`. It grows with x2 and falls with x1, so that the last x1 of a row
/// does not fall from row to row.
TableRegion RegionFrom(const GroupSizes& sizes, double difference, double critical) {
  TableRegion region;
  std::int64_t most = -1;
  for (std::int64_t x2 = 0; x2 <= sizes.n2; ++x2) {
    while (most < sizes.n1 && ScoreStatistic(sizes, difference, most + 1, x2) >= critical) ++most;
    region.push_back({0, most});
  }
  return region;
}

/// The tables of the larger region outside the smaller one, those of the largest statistic first.
std::vector<Candidate> Between(const GroupSizes& sizes, double difference, const TableRegion& smaller,
                               const TableRegion& larger) {
  std::vector<Candidate> candidates;
  for (std::size_t row = 0; row < smaller.size(); ++row) {
    for (std::int64_t x1 = smaller[row].most + 1; x1 <= larger[row].most; ++x1) {
      const std::int64_t x2 = static_cast<std::int64_t>(row);
      candidates.push_back({ScoreStatistic(sizes, difference, x1, x2), x1, x2});
    }
  }
  std::sort(candidates.begin(), candidates.end(),
            [](const Candidate& a, const Candidate& b) { return a.statistic > b.statistic; });
  return candidates;
}

/// How many candidates there are when those that tie are taken together, group after group.
std::vector<std::size_t> EndsOfTies(const std::vector<Candidate>& candidates) {
  std::vector<std::size_t> ends;
  for (std::size_t i = 1; i <= candidates.size(); ++i) {
    if (i == candidates.size() || candidates[i - 1].statistic - candidates[i].statistic > tie) ends.push_back(i);
  }
  return ends;
}

TableRegion With(TableRegion region, const std::vector<Candidate>& candidates, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    std::int64_t& most = region[static_cast<std::size_t>(candidates[i].x2)].most;
    most = std::max(most, candidates[i].x1);
  }
  return region;
}

}  // namespace

double ScoreStatistic(const GroupSizes& sizes, double difference, std::int64_t x1, std::int64_t x2) {
  const double n1 = static_cast<double>(sizes.n1);
  const double n2 = static_cast<double>(sizes.n2);
  const TwoProportions observed{static_cast<double>(x1) / n1, static_cast<double>(x2) / n2};
  const TwoProportions at = ConstrainedProportions(Contrast::Difference, difference, observed, n2 / n1);
  const double variance = at.p1 * (1 - at.p1) / n1 + at.p2 * (1 - at.p2) / n2;
  const double distance = observed.p2 - observed.p1 - difference;
  return variance > 0 ? distance / std::sqrt(variance) : 0;
}

TableRegion ScoreRegion(const GroupSizes& sizes, double difference, double alpha) {
  const LevelOverNuisance level(sizes, difference);
  // The critical value lies near that of large samples.
  double low = -KelMath::KelDistFun::IdfStdNorm(alpha) - 0.12345;
  double high = low + 0.45678;
  TableRegion larger = RegionFrom(sizes, difference, low);
  TableRegion smaller = RegionFrom(sizes, difference, high);
  for (double stride = 0.5; !level.Exceeds(larger, alpha); stride *= 2) {
    if (stride > 1e6) return larger;  // all tables
    smaller = larger;
    high = low;
    low -= stride;
    larger = RegionFrom(sizes, difference, low);
  }
  for (double stride = 0.5; level.Exceeds(smaller, alpha); stride *= 2) {
    larger = smaller;
    high += stride;
    smaller = RegionFrom(sizes, difference, high);
  }
  const std::vector<Candidate> candidates = Between(sizes, difference, smaller, larger);
  const std::vector<std::size_t> ends = EndsOfTies(candidates);
  std::size_t kept = 0;  // groups of ties that may be taken in, and one that may not
  std::size_t beyond = ends.size();
  while (beyond - kept > 1) {
    const std::size_t middle = kept + (beyond - kept) / 2;
    (level.Exceeds(With(smaller, candidates, ends[middle - 1]), alpha) ? beyond : kept) = middle;
  }
  return kept == 0 ? smaller : With(smaller, candidates, ends[kept - 1]);
}

}  // namespace kelpower::proportions
