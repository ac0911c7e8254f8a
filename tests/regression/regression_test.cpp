#include <gtest/gtest.h>

#include <cmath>

#include "kelpower.h"
#include "regression/test_of_predictors.h"

namespace kelpower::regression {
namespace {

constexpr Model withFixed{6, 2, false, true, 0.05};
constexpr Model withRandom{6, 2, true, true, 0.05};

TEST(Regression, IsThatOfTheExports) {
  const Effect partial = Effect::OfRSquared(0.3, 0.25);
  EXPECT_EQ(*Power(withFixed, 80, partial), Powerbymlr(80, 6, 2, 0.3, 0.25, 0, 1, 0.05));
  EXPECT_EQ(*Power(withRandom, 80, partial), Powerbymlr(80, 6, 2, 0.3, 0.25, 1, 1, 0.05));
  EXPECT_EQ(*SizeForPower(withFixed, partial, 0.8), PowerReversebymlr(0.8, 6, 2, 0.3, 0.25, 0, 1, 0.05));
  EXPECT_EQ(*SizeForPower(withRandom, Effect::OfFSquared(0.1), 0.8), PowerReversebymlrwES(0.8, 6, 2, 0.1, 1, 1, 0.05));
}

TEST(Regression, SaysWhyThereIsNoPowerOrSize) {
  const Effect effect = Effect::OfFSquared(0.1);
  EXPECT_EQ(Power(withFixed, 7, effect).Reason(), NoValue::Refused);
  EXPECT_EQ(Power({6, 7, false, true, 0.05}, 80, effect).Reason(), NoValue::Refused);
  EXPECT_EQ(Power({6, 2, false, true, 1}, 80, effect).Reason(), NoValue::Refused);
  EXPECT_EQ(SizeForPower(withFixed, Effect::OfFSquared(0), 0.8).Reason(), NoValue::NotReached);
}

/// How often a search asks for the power at a size.
int EvaluationsFor(double tested) {
  int evaluations = 0;
  const auto powerAt = [&](double size) {
    ++evaluations;
    return 1 - std::exp((tested - size) / 1000);
  };
  EXPECT_NEAR(*SizeForPower({tested, tested, false, true, 0.05}, powerAt, 0.8), tested + 1000 * std::log(5), 1e-6);
  return evaluations;
}

// There the computed power may fall where the true one grows, so that all points of the bisection are evaluated.
TEST(SizeForPower, TakesNothingForGrantedWithMillionsOfPredictors) {
  EXPECT_LT(EvaluationsFor(1e6), 20);
  EXPECT_GT(EvaluationsFor(2e6), 30);
}

TEST(Effect, IsOneNumberInTwoForms) {
  EXPECT_DOUBLE_EQ(Effect::OfFSquared(0.25).rhoSquared, 0.2);
  EXPECT_DOUBLE_EQ(Effect::OfRhoSquared(0.2).fSquared, 0.25);
  EXPECT_DOUBLE_EQ(Effect::OfRSquared(0.6, 0.5).rhoSquared, 0.2);
  EXPECT_TRUE(std::isnan(Effect::OfFSquared(-0.1).rhoSquared));
}

}  // namespace
}  // namespace kelpower::regression
