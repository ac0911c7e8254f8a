#include "anova/repeated.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "anova/overall.h"

namespace kelpower::anova {
namespace {

using Numbers = std::vector<double>;

RepeatedDesign Design(RepeatedEffect effect, double groups, double measurements, double correlation,
                      double epsilon = 1) {
  return {effect, groups, measurements, correlation, epsilon};
}

double PowerOfMeans(const RepeatedDesign& design, const Numbers& means, const Numbers& sizes, double sd) {
  return *design.TestAt(Sum(sizes), 0.05).Power(*design.NoncentralityOfMeans(means, sizes, sd));
}

TEST(Repeated, TwoMeasurementsOfOneGroupAreThePairedTest) {
  const RepeatedDesign design = Design(RepeatedEffect::Within, 1, 2, 0.6);
  const double sd = 4 * std::sqrt(2 * (1 - 0.6));
  const TTest paired = TTest::TwoSided(0.05, 19);
  EXPECT_NEAR(PowerOfMeans(design, {10, 12}, {20}, 4), paired.PowerBothTails(2 / sd * std::sqrt(20)), 1e-13);
}

TEST(Repeated, TwoMeasurementsOfTwoGroupsInteractAsTheirChanges) {
  const RepeatedDesign design = Design(RepeatedEffect::Interaction, 2, 2, 0.6);
  const double sd = 4 * std::sqrt(2 * (1 - 0.6));
  const TTest changes = TTest::TwoSided(0.05, 28);
  const double noncentrality = 3 / (sd * std::sqrt(1. / 20 + 1. / 10));
  EXPECT_NEAR(PowerOfMeans(design, {10, 12, 11, 16}, {20, 10}, 4), changes.PowerBothTails(noncentrality), 1e-13);
}

TEST(Repeated, BetweenGroupsIsTheOneWayTestOfMeansOverMeasurements) {
  const RepeatedDesign design = Design(RepeatedEffect::Between, 3, 4, 0.3);
  const Numbers sizes{6, 9, 12};
  const double sd = 5 * std::sqrt((1 + 3 * 0.3) / 4);
  const double oneWay = *PowerOfMeans(GroupSpread::Of(Numbers{2.5, 5, 4}, sizes), sd, 3, 27, 0.05);
  EXPECT_NEAR(PowerOfMeans(design, {1, 2, 3, 4, 4, 4, 6, 6, 7, 1, 4, 4}, sizes, 5), oneWay, 1e-13);
}

TEST(Repeated, FOfTheMeansIsThatOfTheTable) {
  const Numbers means{1.5, 2.5, 2, 0};
  double squares = 0;
  for (double mean : means) squares += (mean - 1.5) * (mean - 1.5) / 4;
  const RepeatedDesign design = Design(RepeatedEffect::Within, 1, 4, 0.2, 0.8);
  const double ofF = design.NoncentralityOfF(std::sqrt(squares) / 5, RepeatedF::Means, 83);
  EXPECT_NEAR(*design.NoncentralityOfMeans(means, Numbers{83}, 5), ofF, 1e-13 * ofF);
}

TEST(Repeated, KindsOfFAgreeWhereTheyMeanTheSame) {
  const RepeatedDesign design = Design(RepeatedEffect::Within, 1, 3, 0.5);
  const double cohen = design.NoncentralityOfF(0.3, RepeatedF::Cohen, 20);
  EXPECT_NEAR(design.NoncentralityOfF(0.3 * std::sqrt(2. / 3 * 0.5), RepeatedF::Means, 20), cohen, 1e-14);
  EXPECT_NEAR(design.NoncentralityOfF(0.3 * std::sqrt(20. / 19), RepeatedF::Sample, 20), cohen, 1e-14);
}

TEST(Repeated, EpsilonTakesFreedomAndEffectAndNothingBetweenGroups) {
  const RepeatedDesign equal = Design(RepeatedEffect::Interaction, 3, 5, 0.4);
  const RepeatedDesign unequal = Design(RepeatedEffect::Interaction, 3, 5, 0.4, 0.5);
  EXPECT_EQ(unequal.Df1(), equal.Df1() / 2);
  EXPECT_EQ(unequal.Df2(30), equal.Df2(30) / 2);
  EXPECT_NEAR(unequal.NoncentralityOfF(0.2, RepeatedF::Means, 30),
              equal.NoncentralityOfF(0.2, RepeatedF::Means, 30) / 2, 1e-14);
  const RepeatedDesign between = Design(RepeatedEffect::Between, 3, 5, 0.4, 0.5);
  EXPECT_EQ(between.NoncentralityOfF(0.2, RepeatedF::Means, 30),
            Design(RepeatedEffect::Between, 3, 5, 0.4).NoncentralityOfF(0.2, RepeatedF::Means, 30));
  EXPECT_EQ(between.Df1(), 2);
  EXPECT_EQ(between.Df2(30), 27);
}

TEST(Repeated, CorrelationHelpsWithinAndHarmsBetween) {
  double within = 0;
  double between = 1e300;
  for (double correlation : {-0.4, 0.0, 0.3, 0.6, 0.9}) {
    const double w = Design(RepeatedEffect::Within, 2, 3, correlation).NoncentralityOfF(0.2, RepeatedF::Means, 20);
    const double b = Design(RepeatedEffect::Between, 2, 3, correlation).NoncentralityOfF(0.2, RepeatedF::Means, 20);
    EXPECT_GT(w, within);
    EXPECT_LT(b, between);
    within = w;
    between = b;
  }
}

TEST(Repeated, IsRefusedForWhatIsNoDesign) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const auto power = [](const RepeatedDesign& design) { return design.TestAt(20, 0.05).Power(3); };
  EXPECT_TRUE(power(Design(RepeatedEffect::Within, 1, 3, 0.5)));
  EXPECT_FALSE(power(Design(RepeatedEffect::Between, 1, 3, 0.5)));
  EXPECT_FALSE(power(Design(RepeatedEffect::Interaction, 1, 3, 0.5)));
  EXPECT_FALSE(power(Design(RepeatedEffect::Within, 0, 3, 0.5)));
  EXPECT_FALSE(power(Design(RepeatedEffect::Within, 1, 1, 0.5)));
  EXPECT_FALSE(power(Design(RepeatedEffect::Within, 1, 3, -0.5)));
  EXPECT_FALSE(power(Design(RepeatedEffect::Within, 1, 3, 1)));
  EXPECT_FALSE(power(Design(RepeatedEffect::Within, 1, 3, 0.5, 0.49)));
  EXPECT_TRUE(power(Design(RepeatedEffect::Within, 1, 4, 0.5, 1.0 / 3)));
  EXPECT_FALSE(power(Design(RepeatedEffect::Within, 1, 3, 0.5, 1.01)));
  for (RepeatedEffect effect : {RepeatedEffect::Between, RepeatedEffect::Within, RepeatedEffect::Interaction}) {
    EXPECT_FALSE(power(Design(effect, nan, 3, 0.5)));
    EXPECT_FALSE(power(Design(effect, 2, nan, 0.5)));
    EXPECT_FALSE(power(Design(effect, 2, 3, nan)));
    EXPECT_FALSE(power(Design(effect, 2, 3, 0.5, nan)));
  }
}

TEST(Repeated, ContrastOfTwoMeasurementsIsTheirEffect) {
  const RepeatedDesign design = Design(RepeatedEffect::Within, 2, 2, 0.3);
  const Numbers means{10, 12, 11, 16};
  const Numbers sizes{8, 5};
  const double effect = *design.NoncentralityOfMeans(means, sizes, 4);
  EXPECT_NEAR(*design.NoncentralityOfContrast(Numbers{1, -1}, means, sizes, 4), effect, 1e-13 * effect);
  EXPECT_EQ(*design.ContrastTestAt(13, 0.05).Power(3), *design.TestAt(13, 0.05).Power(3));
  EXPECT_FALSE(design.NoncentralityOfContrast(Numbers{1, 0, -1}, means, sizes, 4));
  EXPECT_FALSE(Design(RepeatedEffect::Interaction, 2, 2, 0.3).ContrastTestAt(13, 0.05).Power(3));
}

TEST(Repeated, MeansThatAreNoTableAreRefused) {
  const RepeatedDesign design = Design(RepeatedEffect::Interaction, 2, 3, 0.5);
  EXPECT_FALSE(design.NoncentralityOfMeans(Numbers(5, 1), Numbers{4, 4}, 1));
  EXPECT_FALSE(design.NoncentralityOfMeans(Numbers(6, 1), Numbers{4, 4, 4}, 1));
  EXPECT_FALSE(design.NoncentralityOfMeans(Numbers(6, 1), Numbers{4, 0}, 1));
  EXPECT_FALSE(design.NoncentralityOfMeans(Numbers(6, 1), Numbers{4, 4}, 0));
  EXPECT_FALSE(Design(RepeatedEffect::Interaction, 2, 2.5, 0.5).NoncentralityOfMeans(Numbers(5, 1), Numbers{4, 4}, 1));
  EXPECT_EQ(*design.NoncentralityOfMeans(Numbers(6, 1), Numbers{4, 4}, 1), 0);
}

}  // namespace
}  // namespace kelpower::anova
