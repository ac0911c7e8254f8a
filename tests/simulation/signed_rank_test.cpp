#include "ranks/signed_rank.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/drawn_ranks.h"
#include "support/share_of_studies.h"

// Studies are tested exactly, two-sided at 0.05. How far the approximations are off stands in docs/ranks.md.
namespace kelpower::ranks {
namespace {

struct Design {
  Parent parent;
  double shift;
  double n;
};

SimulatedShare Rejected(const Design& design, int studies) {
  std::vector<double> values(static_cast<std::size_t>(design.n));
  const double lowest = LargestRejected(MassesOfSignedRanks(values.size()), 0.025);
  const double all = design.n * (design.n + 1) / 2;
  return Simulate(studies, 1, [&](auto& engine) {
    Draw(design.parent, design.shift, values, engine);
    const double positive = SumOfPositiveRanks(values);
    return std::min(positive, all - positive) <= lowest;
  });
}

/// How much more an approximation gives than the test has, to three decimals.
struct Excess {
  double byEfficiency;
  double byNoether;
  double byMoments;
};

void ExpectOff(const Design& design, int studies, const Excess& stated) {
  constexpr double rounding = 0.0005;
  const SignedRankTest test{Sides::Two, 0.05};
  const auto& [parent, shift, n] = design;
  const SimulatedShare rejected = Rejected(design, studies);
  const double allowed =
      rounding + kMostStandardErrors * std::sqrt(rejected.share * (1 - rejected.share) / rejected.studies);
  EXPECT_NEAR(*PowerByEfficiency(test, parent, shift, n) - rejected.share, stated.byEfficiency, allowed);
  EXPECT_NEAR(*PowerByNoether(test, PositiveAverage(parent, shift), n) - rejected.share, stated.byNoether, allowed);
  EXPECT_NEAR(*PowerByMoments(test, parent, shift, n) - rejected.share, stated.byMoments, allowed);
}

TEST(SignedRankStudies, OfTenNormalValues) { ExpectOff({Parent::Normal, 0.95, 10}, 1000000, {-0.005, -0.130, -0.057}); }

TEST(SignedRankStudies, OfThirtyLaplaceValues) {
  ExpectOff({Parent::Laplace, 0.5, 30}, 400000, {0.063, -0.051, 0.001});
}

TEST(SignedRankStudies, OfManyLogisticValues) { ExpectOff({Parent::Logistic, 0.25, 120}, 200000, {0.004, -0.011, 0}); }

// The parents that the designs above leave out.
TEST(SignedRankStudies, OfOtherParents) {
  ExpectOff({Parent::Uniform, 0.6, 25}, 100000, {0.077, -0.045, -0.015});
  ExpectOff({Parent::Minimum, 0.6, 25}, 100000, {-0.006, -0.051, -0.011});
}

}  // namespace
}  // namespace kelpower::ranks
