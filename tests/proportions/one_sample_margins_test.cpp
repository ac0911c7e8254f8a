#include "proportions/one_sample_margins.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "proportions/one_sample_tests.h"

namespace kelpower::proportions {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

OneSampleMarginDesign Above(double limit, double alpha, bool isExact) { return {{limit, infinity}, alpha, isExact}; }
OneSampleMarginDesign Below(double limit, double alpha, bool isExact) { return {{-infinity, limit}, alpha, isExact}; }
OneSampleMarginDesign Between(double lower, double upper, double alpha, bool isExact) {
  return {{lower, upper}, alpha, isExact};
}

double PowerOf(const OneSampleMarginDesign& design, double size, double proportion) {
  return OneSampleMarginTest(design).Power(size, proportion).ValueOr(NAN);
}

TEST(OneSampleMargins, AgreeWithPublishedPowers) {
  const struct {
    double size, proportion, power;
  } equivalence[] = {{16386, 0.71, 0.800008645395320},
                     {638, 0.75, 0.800214633755415},
                     {168, 0.80, 0.801789107079452},
                     {316, 0.85, 0.800243662399114},
                     {7248, 0.89, 0.800025059163928}};
  for (const auto& row : equivalence) {
    const OneSampleMarginDesign design = Between(0.7, 0.9, 0.025, false);
    EXPECT_NEAR(PowerOf(design, row.size, row.proportion), row.power, 1e-9) << row.proportion;
    EXPECT_LT(PowerOf(design, row.size - 1, row.proportion), 0.8) << row.proportion;
  }
}

TEST(OneSampleMargins, AgreeWithPublishedSizes) {
  const struct {
    bool isObserved, isCorrected;
    double sizes[3];
  } rows[] = {{false, false, {563, 133, 54}},
              {false, true, {582, 142, 61}},
              {true, false, {503, 101, 32}},
              {true, true, {523, 110, 38}}};
  const double proportions[] = {0.80, 0.85, 0.90};
  for (const auto& row : rows) {
    for (int i = 0; i < 3; ++i) {
      const OneSampleMarginDesign design{{0.75, infinity}, 0.025, false, row.isCorrected, row.isObserved};
      EXPECT_GE(PowerOf(design, row.sizes[i], proportions[i]), 0.8) << row.isObserved << row.isCorrected << i;
      EXPECT_LT(PowerOf(design, row.sizes[i] - 1, proportions[i]), 0.8) << row.isObserved << row.isCorrected << i;
    }
  }
}

TEST(OneSampleMargins, AgreeWithPublishedExactPowers) {
  const OneSampleMarginTest equivalence(Between(0.5, 0.7, 0.05, true));
  EXPECT_EQ(equivalence.Region(500).lower, 269);
  EXPECT_EQ(equivalence.Region(500).upper, 332);
  const double proportions[] = {0.60, 0.63, 0.65, 0.69};
  const double powers[] = {0.996492413122482, 0.94824150777044, 0.758279839373494, 0.113891899567308};
  for (int i = 0; i < 4; ++i) EXPECT_NEAR(*equivalence.Power(500, proportions[i]), powers[i], 2e-15) << i;

  const OneSampleMarginTest five(Above(0.15, 0.05, true));
  EXPECT_EQ(five.Region(110).lower, 24);
  EXPECT_NEAR(*five.Power(110, 0.25), 0.8096740681167, 1e-12);
  EXPECT_NEAR(five.AttainedLevel(110), 0.035475243028166, 1e-14);
  const OneSampleMarginTest half(Above(0.15, 0.025, true));
  EXPECT_EQ(half.Region(136).lower, 30);
  EXPECT_NEAR(*half.Power(136, 0.25), 0.81267606309345, 1e-13);
  EXPECT_NEAR(half.AttainedLevel(136), 0.01791919880391, 1e-13);
}

TEST(OneSampleMargins, OfOneLimitAreTheOneSidedTest) {
  for (const bool isExact : {false, true}) {
    for (const double size : {1.0, 20.0, 133.0, 5000.0}) {
      OneSampleTest plain({isExact, true, 0.025});
      EXPECT_NEAR(PowerOf(Above(0.3, 0.025, isExact), size, 0.4), *plain.Power(size, {0.4, 0.3}), 1e-14) << size;
      EXPECT_NEAR(PowerOf(Below(0.3, 0.025, isExact), size, 0.2), *plain.Power(size, {0.2, 0.3}), 1e-14) << size;
    }
  }
}

TEST(OneSampleMargins, MirrorInFailures) {
  std::mt19937 engine(4);
  std::uniform_real_distribution<double> uniform(0.01, 0.99);
  for (int i = 0; i < 200; ++i) {
    const double limit = uniform(engine);
    const double proportion = uniform(engine);
    const double size = std::floor(1 + 300 * uniform(engine));
    for (const bool isExact : {false, true}) {
      EXPECT_NEAR(PowerOf(Above(limit, 0.05, isExact), size, proportion),
                  PowerOf(Below(1 - limit, 0.05, isExact), size, 1 - proportion), 1e-12)
          << limit << ' ' << proportion << ' ' << size;
    }
  }
}

TEST(OneSampleMargins, OfEquivalenceExcludeBothLimits) {
  std::mt19937 engine(5);
  std::uniform_real_distribution<double> uniform(0.01, 0.99);
  for (int i = 0; i < 200; ++i) {
    const double lower = uniform(engine) / 2;
    const double upper = lower + (1 - lower) * uniform(engine);
    const double proportion = uniform(engine);
    const double size = std::floor(1 + 500 * uniform(engine));
    for (const bool isExact : {false, true}) {
      const double both = PowerOf(Above(lower, 0.05, isExact), size, proportion) +
                          PowerOf(Below(upper, 0.05, isExact), size, proportion) - 1;
      EXPECT_NEAR(PowerOf(Between(lower, upper, 0.05, isExact), size, proportion), std::max(0.0, both), 1e-13)
          << lower << ' ' << upper << ' ' << proportion << ' ' << size;
    }
  }
}

/// The counts that an exact test of limits keeps, by adding masses one after another.
double EnumeratedPower(const ProportionLimits& limits, double alpha, int size, double proportion) {
  const auto mass = [&](int x, double p) {
    return std::exp(std::lgamma(size + 1.0) - std::lgamma(x + 1.0) - std::lgamma(size - x + 1.0) + x * std::log(p) +
                    (size - x) * std::log1p(-p));
  };
  const auto tail = [&](int from, int to, double p) {
    double sum = 0;
    for (int x = from; x <= to; ++x) sum += mass(x, p);
    return sum;
  };
  double power = 0;
  for (int x = 0; x <= size; ++x) {
    const bool isAbove = !limits.HasLower() || tail(x, size, limits.lower) <= alpha;
    const bool isBelow = !limits.HasUpper() || tail(0, x, limits.upper) <= alpha;
    if (isAbove && isBelow) power += mass(x, proportion);
  }
  return power;
}

TEST(OneSampleMargins, AreExactByFullEnumeration) {
  std::mt19937 engine(6);
  std::uniform_real_distribution<double> uniform(0.01, 0.99);
  for (int i = 0; i < 300; ++i) {
    ProportionLimits limits{uniform(engine), infinity};
    if (i % 3 == 1) limits = {-infinity, limits.lower};
    if (i % 3 == 2) limits = {limits.lower / 2, limits.lower / 2 + 0.3};
    const double alpha = 0.2 * uniform(engine);
    const double proportion = uniform(engine);
    const int size = static_cast<int>(1 + 90 * uniform(engine));
    EXPECT_NEAR(PowerOf({limits, alpha, true}, size, proportion), EnumeratedPower(limits, alpha, size, proportion),
                1e-12)
        << limits.lower << ' ' << limits.upper << ' ' << alpha << ' ' << size << ' ' << proportion;
  }
}

TEST(OneSampleMargins, AttainTheLargerLevelOfBothLimits) {
  for (const double n : {20.0, 45.0, 70.0, 110.0}) {
    const OneSampleMarginTest test(Between(0.4, 0.9, 0.05, true));
    const double lower = *test.Power(n, 0.4);
    const double upper = *test.Power(n, 0.9);
    EXPECT_NE(lower, upper);
    EXPECT_EQ(test.AttainedLevel(n), std::max(lower, upper)) << n;
  }
}

TEST(OneSampleMargins, FirstAndLastingSizesAreThoseFoundByTryingAll) {
  std::mt19937 engine(7);
  std::uniform_real_distribution<double> uniform(0.02, 0.98);
  for (int compared = 0; compared < 60;) {
    ProportionLimits limits{uniform(engine), infinity};
    const double proportion = uniform(engine);
    if (compared % 3 == 1) limits = {-infinity, limits.lower};
    if (compared % 3 == 2) limits = {limits.lower / 2, limits.lower / 2 + 0.45};
    if (proportion < limits.lower + 0.12 || proportion > limits.upper - 0.12) continue;
    const OneSampleMarginDesign design{limits, 0.2 * uniform(engine), true};
    const double power = 0.3 + 0.65 * uniform(engine);
    const double first = *FirstSize(design, proportion, power);
    const double lasting = *LastingSize(design, proportion, power);
    EXPECT_GE(PowerOf(design, first, proportion), power);
    for (double size = 1; size < first; ++size) EXPECT_LT(PowerOf(design, size, proportion), power) << size;
    if (lasting > 1) {
      EXPECT_LT(PowerOf(design, lasting - 1, proportion), power);
    }
    for (double size = lasting; size < 4 * lasting + 50; ++size) EXPECT_GE(PowerOf(design, size, proportion), power);
    ++compared;
  }
}

TEST(OneSampleMargins, SayWhyThereIsNoSize) {
  EXPECT_EQ(FirstSize(Above(0.5, 0.05, true), 0.5, 0.8).Reason(), NoValue::NotReached);
  EXPECT_EQ(FirstSize(Above(0.5, 0.05, true), 0.6, 1).Reason(), NoValue::NotReached);
  EXPECT_EQ(FirstSize(Above(0.5, 0.05, true), 0.5 + 1e-9, 0.8).Reason(), NoValue::Uncountable);
  EXPECT_EQ(LastingSize(Below(0.5, 0.05, true), 0.6, 0.8).Reason(), NoValue::NotReached);
  EXPECT_EQ(LastingSize(Between(0.7, 0.5, 0.05, true), 0.6, 0.8).Reason(), NoValue::Refused);
}

TEST(OneSampleMargins, EndTheSearchWhenAsked) {
  for (const double most : {0.0, 5.0, 40.0}) {
    double asked = 0;
    const auto stop = [&] { return ++asked > most; };
    EXPECT_EQ(FirstSize(Between(0.5, 0.7, 0.05, true), 0.68, 0.8, stop).Reason(), NoValue::Stopped);
    EXPECT_EQ(asked, most + 1);
    asked = 0;
    EXPECT_EQ(LastingSize(Between(0.5, 0.7, 0.05, true), 0.68, 0.8, stop).Reason(), NoValue::Stopped);
    EXPECT_EQ(asked, most + 1);
  }
}

TEST(OneSampleMargins, AnswerForEveryNumber) {
  const double numbers[] = {NAN, -infinity,          -1, -0.0, 0,  1e-310, 1e-17, 0.025,
                            0.5, 0.9999999999999999, 1,  2,    37, 1e9,    1e308, infinity};
  for (const double a : numbers) {
    for (const double b : numbers) {
      for (const double c : numbers) {
        for (const bool isExact : {false, true}) {
          for (const ProportionLimits& limits : {ProportionLimits{a, infinity}, {-infinity, a}, {a, b}}) {
            const OneSampleMarginDesign design{limits, b, isExact, !isExact, !isExact};
            for (const double size : {c, 20.0}) {
              const double power = OneSampleMarginTest(design).Power(size, c).ValueOr(0);
              EXPECT_TRUE(std::isnan(power) || (power >= 0 && power <= 1)) << a << ' ' << b << ' ' << c << ' ' << size;
            }
            FirstSize(design, c, b);
            LastingSize(design, c, b);
          }
        }
      }
    }
  }
}

}  // namespace
}  // namespace kelpower::proportions
