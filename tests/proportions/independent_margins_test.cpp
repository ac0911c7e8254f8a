#include "proportions/independent_margins.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "frame/bracketed_root.h"
#include "proportions/independent_large_sample.h"

namespace kelpower::proportions {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

IndependentMarginDesign Above(double limit, double alpha, MarginMethod method = MarginMethod::FarringtonManning,
                              Contrast contrast = Contrast::Difference) {
  return {{contrast, limit, infinity}, method, alpha};
}

IndependentMarginDesign Below(double limit, double alpha, MarginMethod method = MarginMethod::FarringtonManning,
                              Contrast contrast = Contrast::Difference) {
  return {{contrast, -infinity, limit}, method, alpha};
}

double PowerOf(const IndependentMarginDesign& design, double size1, double size2, const TwoProportions& of) {
  return IndependentMarginTest(design, size1, size2).Power(of).ValueOr(NAN);
}

/// The unrounded size of group 2 that reaches a power; group 1 has `ratio` times as many.
double SecondSize(const IndependentMarginDesign& design, const TwoProportions& of, double ratio, double power) {
  return *BracketedRoot([&](double size2) { return PowerOf(design, ratio * size2, size2, of) - power; }, 2, 1e6);
}

TEST(IndependentMargins, AgreeWithPublishedSizes) {
  // Farrington and Manning (1990), page 1451.
  const IndependentMarginDesign tenth = Above(0.1, 0.05);
  const IndependentMarginDesign fifth = Above(0.2, 0.05);
  EXPECT_NEAR(2 * SecondSize(fifth, {0.05, 0.40}, 1, 0.8), 159.687567582761, 1e-9);
  EXPECT_NEAR(SecondSize(tenth, {0.05, 0.25}, 1.5, 0.9), 173.221448806308, 1e-9);
  const TwoProportions most = ConstrainedProportions(Contrast::Difference, 0.2, {0.05, 0.40}, 1);
  EXPECT_NEAR(most.p2, 0.29352969672, 1e-11);
  EXPECT_NEAR(most.p1, 0.09352969672, 1e-11);

  const auto odds = MarginMethod::FarringtonManning;
  EXPECT_NEAR(2 * SecondSize(Above(1, 0.025, odds, Contrast::OddsRatio), {0.10, 0.15}, 1, 0.8), 1355.83998863835, 1e-7);
  EXPECT_NEAR(SecondSize(Above(1.1, 0.025, odds, Contrast::OddsRatio), {0.10, 0.15}, 1.5, 0.8), 900.56760620696, 1e-6);
}

TEST(IndependentMargins, AgreeWithPublishedPowers) {
  const auto pooled = MarginMethod::Pooled;
  EXPECT_NEAR(PowerOf(Above(-0.1, 0.025, pooled), 78, 39, {0.80, 0.90}), 0.80498208440, 1e-9);
  EXPECT_NEAR(PowerOf(Above(-0.1, 0.025, pooled), 212, 106, {0.90, 0.90}), 0.80014845438, 1e-9);
  EXPECT_NEAR(PowerOf(Above(-0.1, 0.025, pooled), 624, 312, {0.95, 0.90}), 0.80045202219, 1e-9);

  const IndependentMarginDesign equivalence{{Contrast::Difference, -0.1, 0.1}, MarginMethod::Wald, 0.05};
  EXPECT_NEAR(SecondSize(equivalence, {0.5, 0.5}, 1, 0.8), 428.1923675334, 1e-9);
  EXPECT_NEAR(PowerOf(equivalence, 542, 542, {0.5, 0.5}), 0.9005573957614, 1e-12);

  EXPECT_NEAR(SecondSize(Above(-0.1, 0.025), {0.85, 0.85}, 1, 0.8), 206.90307554333, 1e-10);
  EXPECT_NEAR(SecondSize(Above(-0.1, 0.025), {0.9, 0.9}, 1, 0.8), 154.43326624838, 1e-10);
  EXPECT_NEAR(SecondSize(Above(-0.1, 0.025), {0.9, 0.9}, 1, 0.9), 204.30655801490, 1e-10);
  EXPECT_NEAR(SecondSize(Above(-0.1, 0.025, MarginMethod::Wald), {0.85, 0.85}, 1, 0.8), 200.146, 1e-3);
  EXPECT_NEAR(SecondSize(Above(-0.1, 0.025, MarginMethod::Wald), {0.9, 0.9}, 1, 0.9), 189.134, 1e-3);
}

TEST(IndependentMargins, WithoutMarginAreTheOneSidedZTest) {
  for (const bool isPooled : {false, true}) {
    for (const bool isCorrected : {false, true}) {
      const IndependentDesign plain{TwoProportionTest::Z, false, true, 0.025, isCorrected, isPooled};
      const auto method = isPooled ? MarginMethod::FarringtonManning : MarginMethod::Wald;
      for (const double size2 : {5.0, 30.0, 400.0}) {
        IndependentMarginDesign above = Above(0, 0.025, method);
        above.isCorrected = isCorrected;
        IndependentMarginDesign below = Below(0, 0.025, method);
        below.isCorrected = isCorrected;
        const LargeSampleTest test(plain, 30, size2);
        EXPECT_NEAR(PowerOf(above, 30, size2, {0.3, 0.5}), *test.Power(0.3, 0.5), 1e-14) << size2;
        EXPECT_NEAR(PowerOf(below, 30, size2, {0.5, 0.3}), *test.Power(0.5, 0.3), 1e-14) << size2;
      }
    }
  }
}

/// The derivative of the log-likelihood along the proportions whose contrast is a limit, found by differences.
double Slope(Contrast contrast, const TwoProportions& at, const TwoProportions& of, double ratio) {
  const double scoreOf1 = (of.p1 - at.p1) / (at.p1 * (1 - at.p1));
  const double scoreOf2 = ratio * (of.p2 - at.p2) / (at.p2 * (1 - at.p2));
  const double v1 = at.p1 * (1 - at.p1);
  const double v2 = at.p2 * (1 - at.p2);
  const double move = contrast == Contrast::Difference ? 1 : contrast == Contrast::RiskRatio ? at.p2 / at.p1 : v2 / v1;
  return scoreOf1 + move * scoreOf2;
}

TEST(IndependentMargins, MaximiseTheLikelihoodUnderTheLimit) {
  std::mt19937 engine(3);
  std::uniform_real_distribution<double> uniform(0.001, 0.999);
  for (int i = 0; i < 2000; ++i) {
    const TwoProportions of{uniform(engine), uniform(engine)};
    const double ratio = std::exp(3 * (uniform(engine) - 0.5));
    const double limits[] = {1.9 * (uniform(engine) - 0.5), std::exp(4 * (uniform(engine) - 0.5)),
                             std::exp(6 * (uniform(engine) - 0.5))};
    for (const Contrast contrast : {Contrast::Difference, Contrast::RiskRatio, Contrast::OddsRatio}) {
      const double limit = limits[static_cast<int>(contrast)];
      const TwoProportions at = ConstrainedProportions(contrast, limit, of, ratio);
      const double reached = contrast == Contrast::Difference  ? at.p2 - at.p1
                             : contrast == Contrast::RiskRatio ? at.p2 / at.p1
                                                               : at.p2 * (1 - at.p1) / (at.p1 * (1 - at.p2));
      EXPECT_NEAR(reached, limit, 1e-11 * std::max(1.0, limit)) << of.p1 << ' ' << of.p2 << ' ' << ratio;
      // The slope crosses 0 within a billionth of the proportions found.
      const double step = 1e-9 * std::min({at.p1, 1 - at.p1, at.p2, 1 - at.p2});
      const auto shifted = [&](double by) -> TwoProportions {
        const double p1 = at.p1 + by;
        if (contrast == Contrast::Difference) return {p1, p1 + limit};
        if (contrast == Contrast::RiskRatio) return {p1, p1 * limit};
        return {p1, p1 * limit / (1 + p1 * (limit - 1))};
      };
      EXPECT_GT(Slope(contrast, shifted(-step), of, ratio), 0) << limit << ' ' << of.p1 << ' ' << of.p2 << ' ' << ratio;
      EXPECT_LT(Slope(contrast, shifted(step), of, ratio), 0) << limit << ' ' << of.p1 << ' ' << of.p2 << ' ' << ratio;
    }
  }
}

TEST(IndependentMargins, MirrorWhenGroupsAreSwapped) {
  std::mt19937 engine(8);
  std::uniform_real_distribution<double> uniform(0.02, 0.98);
  for (int i = 0; i < 300; ++i) {
    const TwoProportions of{uniform(engine), uniform(engine)};
    const TwoProportions swapped{of.p2, of.p1};
    const double size1 = 5 + 200 * uniform(engine);
    const double size2 = 5 + 200 * uniform(engine);
    const double difference = 1.8 * (uniform(engine) - 0.5);
    const double oddsRatio = 0.1 + 4 * uniform(engine);
    const auto score = MarginMethod::FarringtonManning;
    for (const auto method : {score, MarginMethod::MiettinenNurminen, MarginMethod::Wald, MarginMethod::Pooled}) {
      EXPECT_NEAR(PowerOf(Above(difference, 0.05, method), size1, size2, of),
                  PowerOf(Below(-difference, 0.05, method), size2, size1, swapped), 1e-12);
    }
    EXPECT_NEAR(PowerOf(Above(oddsRatio, 0.05, score, Contrast::OddsRatio), size1, size2, of),
                PowerOf(Below(1 / oddsRatio, 0.05, score, Contrast::OddsRatio), size2, size1, swapped), 1e-12);
    EXPECT_NEAR(PowerOf(Above(oddsRatio, 0.05, score, Contrast::RiskRatio), size1, size2, of),
                PowerOf(Below(1 / oddsRatio, 0.05, score, Contrast::RiskRatio), size2, size1, swapped), 1e-12);
  }
}

TEST(IndependentMargins, OfMiettinenAndNurminenHaveTheLargerError) {
  const TwoProportions of{0.3, 0.35};
  const IndependentMarginTest score(Above(-0.1, 0.05), 12, 17);
  const IndependentMarginTest enlarged(Above(-0.1, 0.05, MarginMethod::MiettinenNurminen), 12, 17);
  EXPECT_NEAR(enlarged.AtLower(of).nullError / score.AtLower(of).nullError, std::sqrt(29.0 / 28), 1e-14);
}

TEST(IndependentMargins, GrowWithTheDistanceAndTheSize) {
  for (const auto method : {MarginMethod::FarringtonManning, MarginMethod::MiettinenNurminen, MarginMethod::Wald}) {
    double earlier = 0;
    for (double margin = -0.01; margin > -0.3; margin -= 0.01) {
      const double power = PowerOf(Above(margin, 0.025, method), 100, 100, {0.8, 0.8});
      EXPECT_GT(power, earlier) << margin;
      earlier = power;
    }
    earlier = 0;
    for (double size = 10; size < 500; size += 7) {
      const double power = PowerOf(Above(-0.1, 0.025, method), size, 2 * size, {0.8, 0.8});
      EXPECT_GT(power, earlier) << size;
      earlier = power;
    }
  }
}

TEST(IndependentMargins, RefuseWhatThereIsNot) {
  EXPECT_TRUE(std::isnan(PowerOf(Above(1, 0.05), 20, 20, {0.5, 0.5})));
  EXPECT_TRUE(std::isnan(PowerOf(Above(-0.1, 0), 20, 20, {0.5, 0.5})));
  EXPECT_TRUE(std::isnan(PowerOf(Above(-0.1, 0.05), 0.5, 20, {0.5, 0.5})));
  EXPECT_TRUE(std::isnan(PowerOf(Above(-0.1, 0.05), 20, 20, {0.5, 1})));
  const auto pooled = MarginMethod::Pooled;
  EXPECT_TRUE(std::isnan(PowerOf(Above(0.8, 0.05, pooled, Contrast::RiskRatio), 20, 20, {0.5, 0.5})));
  EXPECT_TRUE(std::isnan(PowerOf({{Contrast::Difference, 0.1, -0.1}, pooled, 0.05}, 20, 20, {0.5, 0.5})));
  EXPECT_TRUE(std::isnan(PowerOf({{}, pooled, 0.05}, 20, 20, {0.5, 0.5})));
}

TEST(IndependentMargins, AnswerForEveryNumber) {
  const double numbers[] = {NAN, -infinity,          -1, -0.1, -0.0,  0,       1e-310, 1e-17,
                            0.5, 0.9999999999999999, 1,  2,    1e308, infinity};
  const auto isPower = [](double power) { return std::isnan(power) || (power >= 0 && power <= 1); };
  for (const double a : numbers) {
    for (const double b : numbers) {
      for (const double c : numbers) {
        for (const Contrast contrast : {Contrast::Difference, Contrast::RiskRatio, Contrast::OddsRatio}) {
          for (const auto method : {MarginMethod::FarringtonManning, MarginMethod::MiettinenNurminen,
                                    MarginMethod::Wald, MarginMethod::Pooled}) {
            const IndependentMarginDesign design{{contrast, a, b}, method, 0.05, c > 0};
            EXPECT_TRUE(isPower(PowerOf(design, 20, 30, {c, 0.5}))) << a << ' ' << b << ' ' << c;
            EXPECT_TRUE(isPower(PowerOf(Above(0.1, 0.05, method, contrast), a, b, {0.3, c}))) << a << ' ' << b;
            EXPECT_TRUE(isPower(PowerOf(Below(a, b, method, contrast), 20, 20, {0.3, c}))) << a << ' ' << b;
          }
        }
      }
    }
  }
}

}  // namespace
}  // namespace kelpower::proportions
