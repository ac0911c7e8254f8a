#include "comparisons/dunnett.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "frame/rejection.h"
#include "kelcommon/kel_dist_fun.h"

namespace {

using namespace kelpower::comparisons;
using kelpower::TTest;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();
using Sizes = std::vector<double>;

// By the same integrals in multiple precision; Dunnett (1964) prints 2.54 and 2.19 for 20 degrees of freedom.
TEST(DunnettTest, HasItsCriticalValues) {
  EXPECT_NEAR(DunnettTest(Sizes(4, 10), false, 0.05).Critical(), 2.45212714529, 1e-11);
  EXPECT_NEAR(DunnettTest(Sizes(4, 6), false, 0.05).Critical(), 2.54034960994, 1e-11);
  EXPECT_NEAR(DunnettTest(Sizes(4, 10), true, 0.05).Critical(), 2.13266473695, 1e-11);
  EXPECT_NEAR(DunnettTest(Sizes(4, 6), true, 0.05).Critical(), 2.19228346239, 1e-11);
}

TEST(DunnettTest, HoldsItsLevelForAllComparisons) {
  for (const Sizes& sizes :
       {Sizes{20, 20, 20}, Sizes{40, 20, 30}, Sizes{100, 2, 2, 2}, Sizes{5, 50, 500}, Sizes(15, 4)})
    for (bool isOneSided : {false, true})
      for (double alpha : {0.2, 0.05, 1e-6}) {
        const DunnettTest test(sizes, isOneSided, alpha);
        const Sizes none(sizes.size() - 1, 0);
        EXPECT_NEAR(*test.Power(Comparisons::Any, none) / alpha, 1, 1e-12) << sizes[1] << " " << isOneSided;
        EXPECT_LT(*test.Power(Comparisons::All, none), alpha);
      }
}

TEST(DunnettTest, OfOneGroupIsTheTTest) {
  const DunnettTest twoSided({25, 40}, false, 0.05);
  const DunnettTest oneSided({25, 40}, true, 0.05);
  for (double noncentrality : {-1.5, 0.0, 2.1, 6.0}) {
    const double two = TTest::TwoSided(0.05, 63).PowerBothTails(std::fabs(noncentrality));
    const double one = TTest::OneSided(0.05, 63).PowerUpperTail(noncentrality);
    for (Comparisons which : {Comparisons::Any, Comparisons::All}) {
      EXPECT_NEAR(*twoSided.Power(which, {noncentrality}), two, 1e-13) << noncentrality;
      EXPECT_NEAR(*oneSided.Power(which, {noncentrality}), one, 1e-13) << noncentrality;
    }
    EXPECT_NEAR(*twoSided.PowerOfOne(noncentrality), two, 1e-13);
    EXPECT_NEAR(*oneSided.PowerOfOne(noncentrality), one, 1e-13);
  }
}

// The power for any, all and each comparison bound each other.
TEST(DunnettTest, OrdersItsPowers) {
  for (bool isOneSided : {false, true}) {
    const DunnettTest test({30, 15, 20, 15}, isOneSided, 0.05);
    const Sizes noncentralities{1, 2.5, 3};
    const double any = *test.Power(Comparisons::Any, noncentralities);
    const double all = *test.Power(Comparisons::All, noncentralities);
    double sum = 0;
    for (double noncentrality : noncentralities) {
      const double one = *test.PowerOfOne(noncentrality);
      EXPECT_LT(all, one);
      EXPECT_GT(any, one);
      sum += one;
    }
    EXPECT_LT(any, sum);
  }
}

// Any of two and all of two make each of the two.
TEST(DunnettTest, OfTwoGroupsAddsUp) {
  for (bool isOneSided : {false, true}) {
    const DunnettTest test({12, 30, 7}, isOneSided, 0.01);
    const Sizes noncentralities{1.2, 3.4};
    EXPECT_NEAR(*test.Power(Comparisons::Any, noncentralities) + *test.Power(Comparisons::All, noncentralities),
                *test.PowerOfOne(1.2) + *test.PowerOfOne(3.4), 1e-13);
  }
}

TEST(DunnettTest, TakesNoncentralitiesFromMeans) {
  const Sizes noncentralities = DunnettTest({40, 10, 40}, false, 0.05).Noncentralities({1, 2, 0.5});
  EXPECT_NEAR(noncentralities[0], std::sqrt(8.0), 1e-15);
  EXPECT_NEAR(noncentralities[1], -0.5 * std::sqrt(20.0), 1e-15);
}

TEST(DunnettTest, IntervalsMatchTheTest) {
  const Sizes sizes{40, 20, 30};
  const double critical = DunnettTest(sizes, false, 0.05).Critical();
  EXPECT_NEAR(HalfWidthOfComparison(6, sizes, 2, 0.05), critical * 6 * std::sqrt(1 / 40.0 + 1 / 30.0), 1e-12);
  EXPECT_TRUE(std::isnan(HalfWidthOfComparison(6, sizes, 0, 0.05)));
  EXPECT_TRUE(std::isnan(HalfWidthOfComparison(6, sizes, 3, 0.05)));
}

TEST(DunnettTest, RefusesWhatIsNoDesign) {
  for (double alpha : {0.0, 1.0, -0.1, nan}) EXPECT_FALSE(DunnettTest({10, 10}, false, alpha).IsValid()) << alpha;
  for (double size : {0.0, -1.0, nan, infinity, 1e6})
    EXPECT_FALSE(DunnettTest({10, size}, false, 0.05).IsValid()) << size;
  EXPECT_FALSE(DunnettTest({}, false, 0.05).IsValid());
  EXPECT_FALSE(DunnettTest({10}, false, 0.05).IsValid());
  EXPECT_FALSE(DunnettTest({1, 1, 1}, false, 0.05).IsValid());
  EXPECT_FALSE(DunnettTest(Sizes(mostTreatments + 1, 5), false, 0.05).IsValid());
  const DunnettTest test({10, 10, 10}, false, 0.05);
  EXPECT_FALSE(test.Power(Comparisons::Any, {1}));
  EXPECT_FALSE(test.Power(Comparisons::All, {1, nan}));
  EXPECT_FALSE(test.Power(Comparisons::All, {1, infinity}));
  EXPECT_FALSE(test.PowerOfOne(nan));
  EXPECT_NEAR(*test.Power(Comparisons::All, {1e300, -1e300}), 1, 1e-14);
}

}  // namespace
// Small levels at few degrees of freedom come from where the error mean square is tiny.
TEST(DunnettTest, KeepsItsDigitsAtSmallLevels) {
  for (const double size : {2.0, 3.0, 10.0, 1000.0})
    for (const double alpha : {1e-6, 1e-10, 1e-14}) {
      const double ofOne = -KelMath::KelDistFun::IdfT(alpha / 2, 2 * size - 2, 0, 0);
      EXPECT_NEAR(DunnettTest({size, size}, false, alpha).Critical() / ofOne, 1, 1e-12) << size << " " << alpha;
    }
  for (const double alpha : {9e-15, 2e-313, std::numeric_limits<double>::denorm_min()})
    EXPECT_FALSE(DunnettTest({1000, 1000, 1000}, true, alpha).IsValid()) << alpha;
}
