#include "frame/integral.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kelpower {
namespace {

TEST(Integral, IsExactForPolynomialsOfKronrodsDegree) {
  for (int degree = 0; degree <= 22; ++degree) {
    const auto power = [&](double x) { return std::pow(x, degree); };
    EXPECT_NEAR(Integrate(power, 0, 1, 1).value, 1.0 / (degree + 1), 2e-16) << degree;
  }
  EXPECT_GT(std::fabs(Integrate([](double x) { return std::pow(x, 24); }, -1, 1, 1).value - 2.0 / 25), 1e-13);
}

TEST(Integral, IsExactForPolynomialsOfGaussDegree) {
  const auto errorOf = [](int degree) {
    return Integrate([=](double x) { return std::pow(x, degree); }, -1, 1, 1).error;
  };
  EXPECT_LT(errorOf(12), 1e-15);
  EXPECT_GT(errorOf(14), 1e-6);
}

TEST(Integral, HalvesUntilItIsAsAccurateAsAsked) {
  const auto step = [](double x) { return 1 / (1 + std::exp(-500 * (x - 0.3))); };
  const Integral integral = Integrate(step, 0, 1, 1e-13);
  EXPECT_NEAR(integral.value, 0.7, 1e-13);
  EXPECT_LT(integral.error, 1e-11);
  EXPECT_NEAR(Integrate([](double x) { return std::sin(x); }, 3, 0, 1e-13).value, std::cos(3) - 1, 1e-14);
}

TEST(Integral, EndsForEveryFunction) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(std::isnan(Integrate([&](double) { return nan; }, 0, 1, 1e-10).value));
  int evaluations = 0;
  const auto rough = [&](double x) {
    ++evaluations;
    return std::sin(1e9 * x);
  };
  EXPECT_GT(Integrate(rough, 0, 1, 0).error, 0);
  EXPECT_LE(evaluations, 15 * 6100);
}

}  // namespace
}  // namespace kelpower
