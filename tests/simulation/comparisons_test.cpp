#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "comparisons/dunnett.h"
#include "comparisons/tukey.h"
#include "support/drawn_groups.h"
#include "support/share_of_studies.h"

// Studies analysed by the multiple comparisons that are planned for.
namespace {

using namespace kelpower::comparisons;
using kelpower::DrawnGroups;
using kelpower::GroupStudy;
using kelpower::kMostStandardErrors;
using kelpower::Simulate;

constexpr int studies = 1000000;

void ExpectTukey(const GroupStudy& study, unsigned seed) {
  const int groups = static_cast<int>(study.means.size());
  const double critical = TukeyTest(groups, study.Total() - groups, 0.05).CriticalT();
  const auto found = Simulate(studies, seed, [&](auto& engine) {
    const DrawnGroups sample(study, engine);
    for (std::size_t i = 0; i < sample.Groups(); ++i)
      for (std::size_t j = 0; j < i; ++j)
        if (std::fabs(sample.T(i, j)) > critical) return true;
    return false;
  });
  EXPECT_LT(found.StandardErrorsFrom(*PowerOfAnyPair(study.means, study.sizes.front(), 0.05)), kMostStandardErrors);
}

TEST(SimulatedComparisons, TukeyFindsAnyPair) {
  ExpectTukey({{0, 0, 0, 1}, {6, 6, 6, 6}}, 1);
  ExpectTukey({{0, 0.7, 1.4}, {3, 3, 3}}, 2);
  ExpectTukey({{0, 0, 0}, {2, 2, 2}}, 3);
}

TEST(SimulatedComparisons, TukeyKramerFindsAPair) {
  const GroupStudy study{{0, 0.4, 1.1}, {3, 5, 8}};
  const double critical = TukeyTest(3, 13, 0.05).CriticalT();
  const auto found =
      Simulate(studies, 4, [&](auto& engine) { return std::fabs(DrawnGroups(study, engine).T(0, 2)) > critical; });
  EXPECT_LT(found.StandardErrorsFrom(*PowerOfPair(1.1, 3, 8, 3, 16, 0.05)), kMostStandardErrors);
}

void ExpectDunnett(const GroupStudy& study, bool isOneSided, Comparisons which, unsigned seed) {
  const DunnettTest test(study.sizes, isOneSided, 0.05);
  const auto found = Simulate(studies, seed, [&](auto& engine) {
    const DrawnGroups sample(study, engine);
    std::size_t significant = 0;
    for (std::size_t i = 1; i < sample.Groups(); ++i) {
      const double t = sample.T(i, 0);
      if ((isOneSided ? t : std::fabs(t)) > test.Critical()) ++significant;
    }
    return which == Comparisons::Any ? significant > 0 : significant + 1 == sample.Groups();
  });
  EXPECT_LT(found.StandardErrorsFrom(*test.Power(which, test.Noncentralities(study.means))), kMostStandardErrors);
}

TEST(SimulatedComparisons, DunnettFindsAnyAndAll) {
  ExpectDunnett({{0, 0.8, 1.2}, {8, 4, 4}}, false, Comparisons::Any, 5);
  ExpectDunnett({{0, 1, 1, 1}, {6, 5, 5, 5}}, true, Comparisons::All, 6);
  ExpectDunnett({{0, 1.5, -1.2}, {5, 3, 6}}, false, Comparisons::All, 7);
  ExpectDunnett({{0, 0, 0}, {3, 3, 3}}, true, Comparisons::Any, 8);
}

}  // namespace
