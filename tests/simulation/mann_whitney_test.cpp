#include "ranks/mann_whitney.h"

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
  double n1;
  double n2;
};

SimulatedShare Rejected(const Design& design, int studies) {
  std::vector<double> first(static_cast<std::size_t>(design.n1));
  std::vector<double> second(static_cast<std::size_t>(design.n2));
  const double lowest = LargestRejected(MassesOfPairs(first.size(), second.size()), 0.025);
  const double pairs = design.n1 * design.n2;
  return Simulate(studies, 1, [&](auto& engine) {
    Draw(design.parent, design.shift, first, engine);
    Draw(design.parent, 0, second, engine);
    const double larger = CountOfLarger(first, second);
    return std::min(larger, pairs - larger) <= lowest;
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
  const TwoGroupTest test{Sides::Two, 0.05};
  const auto& [parent, shift, n1, n2] = design;
  const SimulatedShare rejected = Rejected(design, studies);
  const double allowed =
      rounding + kMostStandardErrors * std::sqrt(rejected.share * (1 - rejected.share) / rejected.studies);
  EXPECT_NEAR(*PowerByEfficiency(test, parent, shift, n1, n2) - rejected.share, stated.byEfficiency, allowed);
  EXPECT_NEAR(*PowerByNoether(test, Superiority(parent, shift), n1, n2) - rejected.share, stated.byNoether, allowed);
  EXPECT_NEAR(*PowerByMoments(test, parent, shift, n1, n2) - rejected.share, stated.byMoments, allowed);
}

TEST(MannWhitneyStudies, OfTenNormalValuesEach) {
  ExpectOff({Parent::Normal, 1.3, 10, 10}, 1000000, {0.024, -0.039, -0.016});
}

TEST(MannWhitneyStudies, OfThirtyLaplaceValuesEach) {
  ExpectOff({Parent::Laplace, 0.7, 30, 30}, 400000, {0.039, -0.021, -0.001});
}

TEST(MannWhitneyStudies, OfManyLogisticValues) {
  ExpectOff({Parent::Logistic, 0.5, 100, 50}, 200000, {0.005, -0.010, 0});
}

// The parents that the designs above leave out.
TEST(MannWhitneyStudies, OfOtherParents) {
  ExpectOff({Parent::Uniform, 0.8, 25, 25}, 100000, {0.062, -0.024, -0.012});
  ExpectOff({Parent::Minimum, 0.8, 25, 25}, 100000, {-0.001, -0.022, -0.010});
}

}  // namespace
}  // namespace kelpower::ranks
