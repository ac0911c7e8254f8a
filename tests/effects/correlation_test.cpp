#include "effects/correlation.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/drawn_correlation.h"
#include "support/share_of_studies.h"

namespace kelpower::effects {
namespace {

// The limits of multiple precision for r = 0.6, n = 28 and 95 %: tanh(0.6931... -+ 1.9599... / 5), where tanh(ln 2) = 0.6.
TEST(FisherInterval, AgreesWithMultiplePrecision) {
  const auto interval = FisherInterval(0.6, 28, 0.05);
  EXPECT_EQ(interval->value, 0.6);
  EXPECT_NEAR(interval->interval.lower, 0.29236867599057087, 1e-15);
  EXPECT_NEAR(interval->interval.upper, 0.7950974253663831, 1e-15);
}

// At 50 cases the normal distribution of z is good to some thousandths of a probability.
TEST(FisherInterval, CoversTheTrueCorrelationAboutAsOftenAsStated) {
  const auto share = Simulate(10000, 51, [](auto& engine) {
    const auto estimate = FisherInterval(DrawCorrelation(engine, 50, 0.5), 50, 0.05);
    return estimate->interval.lower <= 0.5 && 0.5 <= estimate->interval.upper;
  });
  EXPECT_NEAR(share.share, 0.95, 0.003 + kMostStandardErrors * std::sqrt(0.95 * 0.05 / 10000));
}

TEST(CohensQ, IsTheDifferenceOfFishersZ) {
  EXPECT_NEAR(CohensQ(0.6, -0.6), 2 * std::log(2.0), 1e-15);
  const auto q = CohensQ({0.6, 28}, {0, 103}, 0.05);
  EXPECT_NEAR(q->value, std::log(2.0), 1e-15);
  const double reach = 1.959963984540054 * std::sqrt(1.0 / 25 + 1.0 / 100);
  EXPECT_NEAR(q->interval.lower, std::log(2.0) - reach, 1e-14);
  EXPECT_NEAR(q->interval.upper, std::log(2.0) + reach, 1e-14);
  EXPECT_EQ(CohensQ(1, 0.2), HUGE_VAL);
  EXPECT_TRUE(std::isnan(CohensQ(1, 1)));
}

TEST(CorrelationOfD, IsThatOfCohensTable) {
  // Cohen (1988), table 2.2.1: d = 0.2, 0.5 and 0.8 have r = .100, .243 and .371.
  EXPECT_NEAR(CorrelationOfCohensD(0.2), 0.100, 0.0005);
  EXPECT_NEAR(CorrelationOfCohensD(0.5), 0.243, 0.0005);
  EXPECT_NEAR(CorrelationOfCohensD(0.8), 0.371, 0.0005);
  EXPECT_NEAR(CohensDOfCorrelation(0.6), 1.5, 1e-15);
  for (const double share : {0.02, 0.5, 0.9})
    for (const double d : {-3.0, -0.1, 0.0, 0.7, 5.0})
      EXPECT_NEAR(CohensDOfCorrelation(CorrelationOfCohensD(d, share), share), d, 1e-13);
  EXPECT_EQ(CorrelationOfCohensD(-HUGE_VAL), -1);
  EXPECT_EQ(CohensDOfCorrelation(1), HUGE_VAL);
  EXPECT_TRUE(std::isnan(CohensDOfCorrelation(1.1)));
  EXPECT_TRUE(std::isnan(CorrelationOfCohensD(0.5, 1)));
  EXPECT_TRUE(std::isnan(CohensDOfCorrelation(0.5, 0)));
}

// A million people, three tenths of them in the first group and d = 0.8 above the others.
TEST(CorrelationOfD, IsThatOfGroupsOfUnequalSize) {
  constexpr int size = 1000000;
  std::mt19937_64 engine(52);
  std::normal_distribution<double> normal;
  std::bernoulli_distribution isFirst(0.3);
  double x = 0, y = 0, yy = 0, xy = 0;
  for (int i = 0; i < size; ++i) {
    const double group = isFirst(engine) ? 1 : 0;
    const double v = 0.8 * group + normal(engine);
    x += group;
    y += v;
    yy += v * v;
    xy += group * v;
  }
  const double r = (xy - x * y / size) / std::sqrt((x - x * x / size) * (yy - y * y / size));
  EXPECT_NEAR(r, CorrelationOfCohensD(0.8, 0.3), 4 / std::sqrt(1e6));
}

TEST(CorrelationEffects, AreNoneForOtherArguments) {
  EXPECT_FALSE(FisherInterval(1, 28, 0.05));
  EXPECT_FALSE(FisherInterval(0.6, 3, 0.05));
  EXPECT_FALSE(FisherInterval(0.6, 28, 1));
  EXPECT_FALSE(CohensQ({0.6, 3}, {0.2, 40}, 0.05));
  EXPECT_FALSE(CohensQ({0.6, 30}, {-1, 40}, 0.05));
  EXPECT_FALSE(CohensQ({0.6, 30}, {0.2, 40}, 0));
}

}  // namespace
}  // namespace kelpower::effects
