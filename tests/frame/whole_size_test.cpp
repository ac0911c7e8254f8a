#include "frame/whole_size.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>

#include "frame/rejection.h"
#include "kelcommon/kel_dist_fun.h"

namespace kelpower {
namespace {

using Power = FunctionView<double(double)>;

constexpr double largest = 1e15;
constexpr double level = 0.05;

struct Found {
  std::optional<double> size;
  int evaluations = 0;
};

Found Search(double smallest, double target, Power powerAt) {
  Found found;
  found.size = FirstWholeSize(smallest, largest, level, target, [&](double number) {
    EXPECT_GE(number, smallest);
    EXPECT_LE(number, largest);
    EXPECT_EQ(number, std::floor(number));
    ++found.evaluations;
    return powerAt(number);
  });
  return found;
}

/// Of a one-sided z test of an effect.
double NormalPower(double effect, double number) {
  return KelMath::KelDistFun::CdfStdNorm(effect * std::sqrt(number) - 1.6448536269514722);
}

/// Of an F test of four effects.
double FPower(double effect, double number) {
  if (number < 7) return std::numeric_limits<double>::quiet_NaN();
  return FTest::AtLevel(level, 4, number - 5).Power(effect * effect * number);
}

void ExpectFirst(double smallest, double target, Power powerAt, int mostEvaluations) {
  const Found found = Search(smallest, target, powerAt);
  ASSERT_TRUE(found.size);
  EXPECT_GE(powerAt(*found.size), target);
  if (*found.size > smallest) {
    EXPECT_FALSE(powerAt(*found.size - 1) >= target) << *found.size;
  }
  EXPECT_LE(found.evaluations, mostEvaluations);
}

TEST(FirstWholeSize, ReachesTheTargetAndTheOneBeforeItDoesNot) {
  for (const double effect : {3.0, 1.0, 0.5, 0.2, 0.05, 0.01, 1e-3}) {
    for (const double target : {0.051, 0.3, 0.8, 0.95, 0.9999}) {
      SCOPED_TRACE(testing::Message() << effect << ' ' << target);
      ExpectFirst(
          2, target, [&](double number) { return NormalPower(effect, number); }, 14);
      ExpectFirst(
          2, target, [&](double number) { return FPower(effect, number); }, 16);
    }
  }
}

// Where powers next to each other differ by their rounding errors, lines lead astray and halving ends the search.
TEST(FirstWholeSize, IsFoundAmongPowersThatHardlyDiffer) {
  for (const double target : {0.051, 0.8, 1 - 1e-12}) {
    SCOPED_TRACE(target);
    ExpectFirst(
        2, target, [](double number) { return NormalPower(1e-5, number); }, 60);
    ExpectFirst(
        2, target, [](double number) { return FPower(1e-5, number); }, 60);
  }
}

TEST(FirstWholeSize, TakesFewEvaluationsOfAUsualDesign) {
  EXPECT_LE(Search(2, 0.8, [](double number) { return NormalPower(0.25, number); }).evaluations, 5);
  EXPECT_LE(Search(2, 0.8, [](double number) { return FPower(0.25, number); }).evaluations, 6);
}

TEST(FirstWholeSize, IsTheSmallestWhereThatReachesTheTarget) {
  EXPECT_EQ(Search(3, 0.8, [](double) { return 1.0; }).size, 3.0);
  EXPECT_EQ(Search(1e6, 0.8, [](double) { return 0.9; }).size, 1e6);
}

TEST(FirstWholeSize, IsFoundOfAnyIncreasingPower) {
  for (const double step : {2.0, 3.0, 64.0, 65.0, 1000.0, 123456789.0, 1e15}) {
    const Found found = Search(2, 0.5, [&](double number) { return number < step ? 0.0 : 1.0; });
    EXPECT_EQ(found.size, step);
    EXPECT_LE(found.evaluations, 120);
  }
  // Hardly rising, and where there is no power at first.
  EXPECT_EQ(Search(2, 0.5, [](double number) { return number < 5000 ? 0.49999999 : 0.50000001; }).size, 5000.0);
  EXPECT_EQ(Search(2, 0.5, [](double number) { return number < 70 ? NAN : 0.6; }).size, 70.0);
}

TEST(FirstWholeSize, IsNoneWhereNoneReachesTheTarget) {
  for (const double power : {0.0, 0.79, static_cast<double>(NAN)}) {
    const Found found = Search(2, 0.8, [&](double) { return power; });
    EXPECT_FALSE(found.size);
    EXPECT_LE(found.evaluations, 60);
  }
}

}  // namespace
}  // namespace kelpower
