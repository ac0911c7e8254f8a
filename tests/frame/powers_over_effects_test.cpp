#include "frame/powers_over_effects.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kelpower {
namespace {

TEST(PowersOverEffects, AreThoseOfTheDistribution) {
  constexpr double tolerance = 1e-12;
  for (double df1 : {1.0, 2.0, 3.0, 7.5, 40.0, 300.0, 1e4}) {
    for (double df2 : {1.0, 2.0, 6.5, 57.0, 500.0, 1e5, 1e8}) {
      for (double alpha : {1e-6, 0.05, 0.5, 0.999}) {
        const FTest test = FTest::AtLevel(alpha, df1, df2);
        const PowersOverEffects powers(test);
        for (double noncentrality : {0.0, 1e-8, 0.3, 5.0, 40.0, 400.0, 1300.0, 1e5}) {
          EXPECT_NEAR(powers.Power(noncentrality), test.Power(noncentrality), tolerance)
              << df1 << ' ' << df2 << ' ' << alpha << ' ' << noncentrality;
        }
      }
    }
  }
}

TEST(PowersOverEffects, TakeAnyNumber) {
  for (double critical : {0.0, -1.0, HUGE_VAL, std::nan("")}) {
    for (double df2 : {3.0, 0.0, -1.0, std::nan("")}) {
      const FTest test{2, df2, critical, 1e-12};
      for (double noncentrality : {-1.0, 3.0, HUGE_VAL, std::nan("")}) {
        const double power = PowersOverEffects(test).Power(noncentrality);
        const double expected = test.Power(noncentrality);
        EXPECT_TRUE(power == expected || (std::isnan(power) && std::isnan(expected)) ||
                    std::abs(power - expected) < 1e-12)
            << critical << ' ' << df2 << ' ' << noncentrality;
      }
    }
  }
}

}  // namespace
}  // namespace kelpower
