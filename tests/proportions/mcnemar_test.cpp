#include "proportions/mcnemar.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "kelpower.h"
#include "proportions/related_interval.h"
#include "support/stop_requests.h"

namespace kelpower::proportions {
namespace {

TEST(McNemarTest, IsThatOfTheExports) {
  for (const bool isExact : {false, true}) {
    const McNemarDesign design{isExact, false, 0.05};
    McNemarTest test(design);
    EXPECT_EQ(*test.Power(90, {0.3, 0.1}), PowerbyPRelSampBionm(90, 0.3, 0.1, 0, isExact, 0.05, nullptr));
    EXPECT_EQ(*SizeForPower(design, {0.3, 0.1}, 0.8),
              PowerReversebyPRelSampBionm(0.8, 0.3, 0.1, 0, isExact, 0.05, nullptr));
  }
}

TEST(McNemarTest, HasTheRegionOfTheTextbook) {
  // Two-sided at 0.05 with 10 pairs: P(X <= 1) = 11/1024 rejects, P(X <= 2) = 56/1024 does not.
  const McNemarTest test({true, false, 0.05});
  EXPECT_EQ(test.Region(10, {0.3, 0.1}).lower, 1);
  EXPECT_EQ(test.Region(10, {0.3, 0.1}).upper, 9);
  EXPECT_EQ(test.Region(5, {0.3, 0.1}).lower, -1);
  EXPECT_EQ(test.Region(5, {0.3, 0.1}).upper, 6);

  const McNemarTest oneSided({true, true, 0.05});
  EXPECT_EQ(oneSided.Region(10, {0.3, 0.1}).upper, 11);
  EXPECT_EQ(oneSided.Region(10, {0.1, 0.3}).lower, -1);
}

// 5 pairs of 5 of one kind, and none, have the probability 1/32 under the null hypothesis. The upper tail does not count
// at such a tie.
TEST(McNemarTest, HasAnAsymmetricRegionAtATie) {
  const McNemarTest lower({true, true, 1.0 / 32});
  EXPECT_EQ(lower.Region(5, {0.3, 0.1}).lower, 0);
  EXPECT_EQ(lower.Region(5, {0.1, 0.3}).upper, 6);
}

TEST(McNemarTest, AttainsALevelUpToItsOwn) {
  for (const double alpha : {0.01, 0.05, 0.2}) {
    McNemarTest test({true, false, alpha});
    for (double n = 2; n < 200; n += 7) EXPECT_LE(*test.AttainedLevel(n, {0.3, 0.1}), alpha);
  }
}

TEST(McNemarTest, SaysWhyThereIsNoPowerOrSize) {
  McNemarTest test({true, false, 0.05});
  EXPECT_EQ(test.Power(1, {0.3, 0.1}).Reason(), NoValue::Refused);
  EXPECT_EQ(test.Power(20, {0.9, 0.2}).Reason(), NoValue::Refused);
  EXPECT_EQ(test.Power(20, {0, 0}).Reason(), NoValue::NoDistribution);
  EXPECT_EQ(test.Power(2147483648.0, {0.3, 0.1}).Reason(), NoValue::Uncountable);
  keltest::CountingStop stop(3);
  EXPECT_EQ(test.Power(20, {0.3, 0.1}, stop).Reason(), NoValue::Stopped);
  EXPECT_EQ(SizeForPower({false, false, 0.05}, {0.2, 0.2}, 0.8).Reason(), NoValue::NotReached);
}

TEST(RelatedInterval, IsThatOfTheExports) {
  for (int method = 0; method < 3; ++method) {
    const RelatedInterval interval({RelatedMethod(method), {0.3, 0.1}, 0.05, true});
    EXPECT_EQ(interval.HalfWidth(80), HalfCIRelSampBinom(80, 0.3, 0.1, method, 0.05, 1)) << method;
    EXPECT_EQ(std::ceil(*interval.SizeFor(0.1)),
              PowerReversebyHalfCIRelSampBinom(0.1, 0.3, 0.1, method, 0.05, 1, nullptr))
        << method;
  }
}

}  // namespace
}  // namespace kelpower::proportions
