#include "frame/bracketed_root.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kelpower {
namespace {

TEST(BracketedRoot, IsFoundToTheLastDigits) {
  EXPECT_NEAR(*BracketedRoot([](double x) { return x * x - 2; }, 0, 5), std::sqrt(2.0), 4e-16);
  EXPECT_NEAR(*BracketedRoot([](double x) { return 2 - x * x; }, 0, 5), std::sqrt(2.0), 4e-16);
  EXPECT_NEAR(*BracketedRoot([](double x) { return std::exp(x) - 1e100; }, -800, 700), std::log(1e100), 1e-13);
  EXPECT_NEAR(*BracketedRoot([](double x) { return std::cbrt(x - 1e-9); }, -1, 1e6), 1e-9, 1e-24);
}

TEST(BracketedRoot, TakesFewEvaluationsForASmoothFunction) {
  int evaluations = 0;
  EXPECT_TRUE(BracketedRoot(
      [&](double x) {
        ++evaluations;
        return std::tanh(x - 3) - 0.5;
      },
      -20, 40));
  EXPECT_LT(evaluations, 25);
}

TEST(BracketedRoot, EndsForEveryFunction) {
  int evaluations = 0;
  const auto jump = [&](double x) {
    ++evaluations;
    return x < 1e-200 ? -1.0 : 1e-300;
  };
  EXPECT_NEAR(*BracketedRoot(jump, -1e300, 1), 1e-200, 1e-215);
  EXPECT_LE(evaluations, 2200);
}

TEST(BracketedRoot, IsNotReachedWithoutAChangeOfSign) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(BracketedRoot([](double x) { return x * x + 1; }, -1, 1).Reason(), NoValue::NotReached);
  EXPECT_EQ(BracketedRoot([&](double x) { return x > 0.5 ? nan : x; }, -0.3, 0.4).Reason(), std::nullopt);
  EXPECT_EQ(BracketedRoot([&](double) { return nan; }, -1, 1).Reason(), NoValue::NotReached);
  EXPECT_EQ(BracketedRoot([](double x) { return x; }, -HUGE_VAL, 1).Reason(), NoValue::NotReached);
  EXPECT_EQ(*BracketedRoot([](double x) { return x; }, 0, 1), 0);
  EXPECT_EQ(*BracketedRoot([](double x) { return x; }, -1, 0), 0);
}

}  // namespace
}  // namespace kelpower
