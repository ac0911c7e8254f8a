#include "ranks/ordinal.h"

#include <gtest/gtest.h>

#include "support/drawn_counts.h"
#include "support/share_of_studies.h"

// Studies are tested two-sided at 0.05, by ranks with ties and the variance that these leave, without a correction for
// continuity. How far the approximations are off stands in docs/ranks.md.
namespace kelpower::ranks {
namespace {

struct Design {
  Numbers first;
  double oddsRatio;
  int n1;
  int n2;
};

OrderedGroups GroupsOf(const Design& design) {
  return {design.first.data(), nullptr, design.oddsRatio, design.first.size()};
}

SimulatedShare Rejected(const Design& design, int studies) {
  constexpr double critical = 1.959963984540054;
  const Numbers second = Moved(design.first, design.oddsRatio);
  const Categories ofFirst(design.first);
  const Categories ofSecond(second);
  const std::size_t categories = second.size();
  Numbers counts(2 * categories);
  return Simulate(studies, 1, [&](auto& engine) {
    ofFirst.Draw(engine, design.n1, counts);
    ofSecond.Draw(engine, design.n2, counts, categories);
    return std::fabs(RankZ(counts)) > critical;
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

const Numbers five{0.1, 0.2, 0.4, 0.2, 0.1};

TEST(OrdinalStudies, OfTenInEachGroup) { ExpectOff({five, 8, 10, 10}, 1000000, {0.038, 0.068, -0.009}); }

TEST(OrdinalStudies, OfFortyInEachGroup) { ExpectOff({five, 3, 40, 40}, 400000, {0.006, 0.017, 0}); }

TEST(OrdinalStudies, OfManyInUnequalGroups) { ExpectOff({{0.2, 0.5, 0.2, 0.1}, 0.5, 150, 100}, 200000, {0, 0.008, 0}); }

}  // namespace
}  // namespace kelpower::ranks
