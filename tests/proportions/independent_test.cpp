#include <gtest/gtest.h>

#include <cmath>

#include "kelpower.h"
#include "proportions/independent_interval.h"
#include "proportions/independent_power.h"
#include "proportions/independent_sizes.h"
#include "support/stop_requests.h"

namespace kelpower::proportions {
namespace {

IndependentDesign LargeSample(TwoProportionTest test) { return {test, false, false, 0.05, false, true}; }
IndependentDesign Exact(TwoProportionTest test) { return {test, true, false, 0.05, false, true}; }

TEST(IndependentPower, IsThatOfTheExports) {
  using Tested = TwoProportionTest;
  for (const Tested test : {Tested::Z, Tested::T, Tested::LikelihoodRatio, Tested::Arcsine}) {
    EXPECT_EQ(*IndependentPower(LargeSample(test), 40, 30).At(0.3, 0.6),
              PowerIndSampBinom(40, 30, 0.3, 0.6, 0, static_cast<int>(test), 0, 0.05, 0, 1, nullptr));
  }
  for (const Tested test : {Tested::Z, Tested::T, Tested::LikelihoodRatio, Tested::Conditional}) {
    EXPECT_EQ(*IndependentPower(Exact(test), 40, 30).At(0.3, 0.6),
              PowerIndSampBinom(40, 30, 0.3, 0.6, 1, static_cast<int>(test), 0, 0.05, 0, 1, nullptr));
  }
}

TEST(IndependentPower, SizesForLargeSamplesAreThoseOfTheExports) {
  using Tested = TwoProportionTest;
  for (const Tested test : {Tested::Z, Tested::T, Tested::LikelihoodRatio, Tested::Arcsine}) {
    const Answer size1 = FirstSizeForPower(LargeSample(test), {0.3, 0.5, 1.5}, 0.8);
    DoubleVector sizes;
    PowerReverseIndSampBinom(0.8, 0.3, 0.5, sizes, 1.5, 0, static_cast<int>(test), 0, 0.05, 0, 1, nullptr);
    EXPECT_EQ(sizes, (DoubleVector{std::ceil(*size1), std::ceil(*size1 * 1.5)}));
  }
}

// Where both proportions are the same, the power of an exact test is the level that it attains.
TEST(IndependentPower, AttainsALevel) {
  using Tested = TwoProportionTest;
  for (const Tested test : {Tested::Z, Tested::LikelihoodRatio, Tested::Conditional}) {
    IndependentPower power(Exact(test), 40, 30);
    EXPECT_EQ(*power.AttainedLevel(Alternative::TwoSided, 0.3), *power.At(0.3, 0.3));
  }
  IndependentPower conditional(Exact(Tested::Conditional), 40, 30);
  EXPECT_LE(*conditional.AttainedLevel(Alternative::TwoSided, 0.3), 0.05);

  const IndependentDesign oneSided{Tested::Conditional, true, true, 0.05};
  IndependentPower power(oneSided, 40, 30);
  EXPECT_NEAR(*power.AttainedLevel(Alternative::FirstGreater, 0.3),
              *IndependentPower(oneSided, 30, 40).AttainedLevel(Alternative::SecondGreater, 0.3), 1e-13);
  EXPECT_EQ(IndependentPower(LargeSample(Tested::Z), 40, 30).AttainedLevel(Alternative::TwoSided, 0.3).Reason(),
            NoValue::Refused);
}

TEST(IndependentPower, SaysWhyThereIsNoPowerOrSize) {
  using Tested = TwoProportionTest;
  EXPECT_EQ(IndependentPower(LargeSample(Tested::Z), 0.5, 30).At(0.3, 0.6).Reason(), NoValue::Refused);
  EXPECT_EQ(IndependentPower(LargeSample(Tested::Z), 40, 30).At(0, 0.6).Reason(), NoValue::Refused);
  EXPECT_EQ(IndependentPower(LargeSample(Tested::T), 1, 1).At(0.3, 0.6).Reason(), NoValue::Refused);
  EXPECT_EQ(IndependentPower(LargeSample(Tested::Arcsine), 1, 30).At(0.95, 0.97).Reason(), NoValue::Refused);
  EXPECT_EQ(IndependentPower(LargeSample(Tested::Conditional), 40, 30).At(0.3, 0.6).Reason(), NoValue::Refused);
  EXPECT_EQ(IndependentPower(Exact(Tested::Arcsine), 40, 30).At(0.3, 0.6).Reason(), NoValue::Refused);
  EXPECT_EQ(IndependentPower(Exact(Tested::Z), 3e9, 30).At(0.3, 0.6).Reason(), NoValue::Uncountable);
  EXPECT_EQ(IndependentPower(Exact(Tested::Conditional), 3e9, 30).At(0.3, 0.6).Reason(), NoValue::Uncountable);
  keltest::CountingStop stop(3);
  EXPECT_EQ(IndependentPower(Exact(Tested::Z), 40, 30).At(0.3, 0.6, stop).Reason(), NoValue::Stopped);
  EXPECT_EQ(FirstSizeForPower(LargeSample(Tested::Z), {0.3, 0.3, 1}, 0.8).Reason(), NoValue::NotReached);
  EXPECT_EQ(FirstSizeForPower(Exact(Tested::Arcsine), {0.3, 0.5, 1}, 0.8).Reason(), NoValue::NotReached);
}

TEST(IndependentInterval, IsThatOfTheExports) {
  for (int method = 0; method < 6; ++method) {
    const IndependentInterval interval({IndependentMethod(method), 0.3, 0.6, 0.05, true});
    EXPECT_EQ(interval.HalfWidth(80, 60), HalfCIIndSampBinom(80, 60, 0.3, 0.6, method, 0.05, 1)) << method;
    const double size1 = *interval.FirstSizeFor(0.1, 1.5);
    DoubleVector sizes;
    PowerReversebyHalfCIIndSampBinom(0.1, 0.3, 0.6, sizes, 1.5, method, 0.05, 1, nullptr);
    EXPECT_EQ(sizes, (DoubleVector{std::ceil(size1), std::ceil(1.5 * size1)})) << method;
  }
}

}  // namespace
}  // namespace kelpower::proportions
