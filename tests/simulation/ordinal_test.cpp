#include "ranks/ordinal.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/share_of_studies.h"

// Studies are tested two-sided at 0.05, by ranks with ties and the variance that these leave, without a correction for
// continuity. How far the approximations are off stands in docs/ranks.md.
namespace kelpower::ranks {
namespace {

using Probabilities = std::vector<double>;

struct Design {
  Probabilities first;
  double oddsRatio;
  int n1;
  int n2;
};

OrderedGroups GroupsOf(const Design& design) {
  return {design.first.data(), nullptr, design.oddsRatio, design.first.size()};
}

/// The second group, by the odds of what lies above each cut.
Probabilities Moved(const Probabilities& first, double oddsRatio) {
  Probabilities second;
  double below = 0;
  double moved = 0;
  for (double probability : first) {
    below += probability;
    const double odds = (1 - below) / below * oddsRatio;
    second.push_back(1 / (1 + odds) - moved);
    moved = 1 / (1 + odds);
  }
  return second;
}

/// The statistic of the test, squared.
double SquaredZ(const std::vector<int>& first, const std::vector<int>& second, double n1, double n2) {
  const double total = n1 + n2;
  double below = 0;
  double ranks = 0;
  double cubes = 0;
  for (std::size_t i = 0; i < first.size(); ++i) {
    const double tied = first[i] + second[i];
    ranks += first[i] * (below + (tied + 1) / 2);
    cubes += tied * tied * tied - tied;
    below += tied;
  }
  const double distance = ranks - n1 * (total + 1) / 2;
  const double variance = n1 * n2 / 12 * (total + 1 - cubes / (total * (total - 1)));
  return variance > 0 ? distance * distance / variance : 0;
}

SimulatedShare Rejected(const Design& design, int studies) {
  constexpr double critical = 1.959963984540054;
  const Probabilities second = Moved(design.first, design.oddsRatio);
  std::discrete_distribution<int> ofFirst(design.first.begin(), design.first.end());
  std::discrete_distribution<int> ofSecond(second.begin(), second.end());
  return Simulate(studies, 1, [&](auto& engine) {
    std::vector<int> counts1(second.size());
    std::vector<int> counts2(second.size());
    for (int i = 0; i < design.n1; ++i) ++counts1[ofFirst(engine)];
    for (int i = 0; i < design.n2; ++i) ++counts2[ofSecond(engine)];
    return SquaredZ(counts1, counts2, design.n1, design.n2) > critical * critical;
  });
}

/// How much more an approximation gives than the test has, to three decimals.
struct Excess {
  double byLogOdds;
  double byProportionalOdds;
  double byProbability;
};

void ExpectOff(const Design& design, int studies, const Excess& stated) {
  constexpr double rounding = 0.0005;
  const SimulatedShare rejected = Rejected(design, studies);
  const double allowed =
      rounding + kMostStandardErrors * std::sqrt(rejected.share * (1 - rejected.share) / rejected.studies);
  const auto excess = [&](OrdinalMethod method) {
    return *Power({method, Sides::Two, 0.05}, GroupsOf(design), design.n1, design.n2) - rejected.share;
  };
  EXPECT_NEAR(excess(OrdinalMethod::LogOdds), stated.byLogOdds, allowed);
  EXPECT_NEAR(excess(OrdinalMethod::ProportionalOdds), stated.byProportionalOdds, allowed);
  EXPECT_NEAR(excess(OrdinalMethod::Probability), stated.byProbability, allowed);
}

const Probabilities five{0.1, 0.2, 0.4, 0.2, 0.1};

TEST(OrdinalStudies, OfTenInEachGroup) { ExpectOff({five, 8, 10, 10}, 1000000, {0.038, 0.068, -0.009}); }

TEST(OrdinalStudies, OfFortyInEachGroup) { ExpectOff({five, 3, 40, 40}, 400000, {0.006, 0.017, 0}); }

TEST(OrdinalStudies, OfManyInUnequalGroups) { ExpectOff({{0.2, 0.5, 0.2, 0.1}, 0.5, 150, 100}, 200000, {0, 0.008, 0}); }

}  // namespace
}  // namespace kelpower::ranks
