#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "frame/root_finders.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"
#include "literal_tests.h"
#include "support/answers.h"
#include "support/stop_requests.h"

namespace {

using keltest::CountingStop;
using keltest::OrMissing;

using KelCommon::KelMV;

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double quietNaN = std::numeric_limits<double>::quiet_NaN();

double LargeSample(double n, double p12, double p21, int oneSided, double alpha = 0.05) {
  return PowerbyPRelSampBionm(n, p12, p21, oneSided, 0, alpha, nullptr);
}

double Exact(double n, double p12, double p21, int oneSided, double alpha = 0.05) {
  return PowerbyPRelSampBionm(n, p12, p21, oneSided, 1, alpha, nullptr);
}

double ExactSize(double power, double p12, double p21, int oneSided, double alpha = 0.05) {
  return PowerReversebyPRelSampBionm(power, p12, p21, oneSided, 1, alpha, nullptr);
}

double HalfWidth(double n, double p12, double p21, int method, std::uint8_t correction = 0) {
  return HalfCIRelSampBinom(n, p12, p21, method, 0.05, correction);
}

struct Design {
  double size;
  double p12;
  double p21;
  int oneSided;
  double alpha;
};

std::ostream& operator<<(std::ostream& out, const Design& d) {
  out.precision(17);
  return out << "N " << d.size << ", p12 " << d.p12 << ", p21 " << d.p21 << ", one-sided " << d.oneSided << ", alpha "
             << d.alpha;
}

/// Designs with many ties between the level and the null distribution, whose probabilities are dyadic.
class RandomDesigns {
public:
  explicit RandomDesigns(unsigned seed) : engine_(seed) {}

  Design Next() {
    const double whole = std::floor(std::exp(Uniform(std::log(2.0), std::log(150.0))));
    const double discordant = Discordant();
    const double share = Share();
    return {Uniform(0, 1) < 0.2 ? whole + Uniform(0, 1) : whole, discordant * (1 - share), discordant * share,
            Uniform(0, 1) < 0.5, Level()};
  }

  double Uniform(double low, double high) { return std::uniform_real_distribution<double>(low, high)(engine_); }

private:
  double Discordant() {
    const double kind = Uniform(0, 1);
    if (kind < 0.1) return 1;
    if (kind < 0.2) return std::pow(10.0, Uniform(-12, -1));
    if (kind < 0.3) return 1 - std::pow(10.0, Uniform(-14, -1));
    return Uniform(0.01, 1);
  }

  double Share() {
    const double kind = Uniform(0, 1);
    if (kind < 0.15) return std::floor(Uniform(0, 5)) / 4;
    if (kind < 0.25) return std::pow(10.0, Uniform(-300, -1));
    return Uniform(0, 1);
  }

  double Level() {
    const double kind = Uniform(0, 1);
    if (kind < 0.3) return std::ldexp(std::floor(Uniform(1, 8)), -3 - static_cast<int>(Uniform(0, 10)));
    if (kind < 0.4) return Uniform(0.001, 0.999);
    if (kind < 0.5) return std::pow(10.0, Uniform(-18, -3));
    return std::vector<double>{0.1, 0.05, 0.025, 0.01, 0.001}[static_cast<std::size_t>(Uniform(0, 5))];
  }

  std::mt19937 engine_;
};

// The library and the definition add the same terms in another way, and binomial masses as evaluated are good to about
// 1e-14.
constexpr double rounding = 1e-14;

TEST(PowerbyPRelSampBionm, OfTheExactTestIsThatOfItsDefinition) {
  RandomDesigns designs(20240612);
  for (int i = 0; i < 3000; ++i) {
    const Design d = designs.Next();
    if (d.p12 + d.p21 > 1) continue;
    CountingStop expectedStop;
    const double expected = literal::PairedPower(d.size, d.p12, d.p21, d.oneSided, d.alpha, &expectedStop);
    CountingStop stop;
    EXPECT_NEAR(PowerbyPRelSampBionm(d.size, d.p12, d.p21, d.oneSided, 1, d.alpha, &stop), expected, rounding) << d;
    EXPECT_EQ(stop.asked, expectedStop.asked) << d;
  }
}

TEST(PowerbyPRelSampBionm, StopsWhereItsDefinitionStops) {
  RandomDesigns designs(9);
  for (int i = 0; i < 300; ++i) {
    const Design d = designs.Next();
    if (d.p12 + d.p21 > 1) continue;
    const long trueFrom = 1 + static_cast<long>(designs.Uniform(0, 1.3 * d.size));
    CountingStop expectedStop(trueFrom);
    CountingStop stop(trueFrom);
    EXPECT_NEAR(PowerbyPRelSampBionm(d.size, d.p12, d.p21, d.oneSided, 1, d.alpha, &stop),
                literal::PairedPower(d.size, d.p12, d.p21, d.oneSided, d.alpha, &expectedStop), rounding)
        << d;
    EXPECT_EQ(stop.asked, expectedStop.asked) << d;
  }
}

TEST(PowerbyPRelSampBionm, OfTheExactTestFailsAsItsDefinitionDoes) {
  for (int oneSided : {0, 1}) {
    for (const Design& d :
         {Design{20, 0, 0, oneSided, 0.05}, Design{3, 0, 0, oneSided, 0.05}, Design{20, quietNaN, 0.1, oneSided, 0.05},
          Design{20, 0.1, quietNaN, oneSided, 0.05}, Design{20, 0.1, 0.2, oneSided, quietNaN},
          Design{quietNaN, 0.1, 0.2, oneSided, 0.05}, Design{2000, 0, 0, oneSided, 1e-300}}) {
      CountingStop expectedStop;
      CountingStop stop;
      EXPECT_EQ(PowerbyPRelSampBionm(d.size, d.p12, d.p21, oneSided, 1, d.alpha, &stop),
                literal::PairedPower(d.size, d.p12, d.p21, oneSided, d.alpha, &expectedStop))
          << d;
      EXPECT_EQ(stop.asked, expectedStop.asked) << d;
    }
  }
}

// Far beyond what is kept for the next call, where only the numbers of pairs that are likely are visited.
TEST(PowerbyPRelSampBionm, OfTheExactTestIsThatOfItsDefinitionAtLargeSizes) {
  EXPECT_NEAR(Exact(6000, 0.45, 0.47, 0), literal::PairedPower(6000, 0.45, 0.47, 0, 0.05, nullptr), 1e-12);
  EXPECT_NEAR(Exact(7000, 0.41, 0.40, 1), literal::PairedPower(7000, 0.41, 0.40, 1, 0.05, nullptr), 1e-12);
}

TEST(PowerbyPRelSampBionm, OfTheExactTestHasNoJumpWhereItStopsKeeping) {
  for (double n = 9500; n < 11500; n += 100) {
    EXPECT_NEAR(Exact(n, 0.26, 0.24, 0), Exact(n + 100, 0.26, 0.24, 0), 0.01) << n;
  }
}

TEST(PowerbyPRelSampBionm, MatchesPublishedPowers) { EXPECT_NEAR(Exact(50, 0.08, 0.32, 1), 0.839357, 5e-7); }

TEST(PowerbyPRelSampBionm, OfEqualProbabilitiesIsAlphaForLargeSamplesAndAtMostAlphaIfExact) {
  for (double alpha : {0.2, 0.05, 0.001}) {
    for (int oneSided : {0, 1}) {
      EXPECT_NEAR(LargeSample(60, 0.2, 0.2, oneSided, alpha), alpha, 1e-14);
      EXPECT_LE(Exact(60, 0.2, 0.2, oneSided, alpha), alpha);
    }
  }
}

TEST(PowerbyPRelSampBionm, DoesNotDependOnWhichMeasureComesFirst) {
  RandomDesigns designs(13);
  for (int i = 0; i < 500; ++i) {
    const Design d = designs.Next();
    if (d.p12 + d.p21 > 1 || d.alpha >= 0.5 || d.alpha < 1e-9) continue;
    // Away from ties, which fall to one side, and from levels that 1 - alpha rounds.
    const double alpha = d.alpha * 1.000001;
    EXPECT_NEAR(Exact(d.size, d.p12, d.p21, d.oneSided, alpha), Exact(d.size, d.p21, d.p12, d.oneSided, alpha),
                rounding)
        << d;
  }
  EXPECT_NEAR(LargeSample(70, 0.12, 0.3, 1), LargeSample(70, 0.3, 0.12, 1), 1e-14);
}

TEST(PowerbyPRelSampBionm, OfTheExactTestApproachesTheLargeSampleOne) {
  EXPECT_NEAR(Exact(1e6, 0.201, 0.2, 0), LargeSample(1e6, 0.201, 0.2, 0), 2e-3);
  EXPECT_NEAR(Exact(1e8, 0.2001, 0.2, 1), LargeSample(1e8, 0.2001, 0.2, 1), 2e-4);
}

TEST(PowerbyPRelSampBionm, OfTheExactTestKeepsItsDigitsAtEverySize) {
  // With every pair discordant and of the first kind, the test rejects once 2^-N is within the level.
  EXPECT_EQ(Exact(5, 1, 0, 1), 1);
  EXPECT_EQ(Exact(4, 1, 0, 1), 0);
  EXPECT_EQ(Exact(100000, 1, 0, 0), 1);
  EXPECT_NEAR(Exact(100000, 0.5, 0, 0), 1, 1e-12);
}

TEST(PowerbyPRelSampBionm, IsMinusOneForInvalidInput) {
  for (int exact : {0, 1}) {
    const auto power = [&](double n, double p12, double p21, double alpha) {
      return PowerbyPRelSampBionm(n, p12, p21, 0, exact, alpha, nullptr);
    };
    EXPECT_EQ(power(1.999, 0.2, 0.1, 0.05), -1);
    EXPECT_EQ(power(30, 0.6, 0.5, 0.05), -1);
    EXPECT_EQ(power(30, -0.1, 0.5, 0.05), -1);
    EXPECT_EQ(power(30, 0.1, -0.5, 0.05), -1);
    EXPECT_EQ(power(30, 0.1, 0.2, 0), -1);
    EXPECT_EQ(power(30, 0.1, 0.2, 1), -1);
    EXPECT_NE(power(30, 0.5, 0.5, 0.05), -1);
  }
}

TEST(PowerbyPRelSampBionm, OfTheExactTestIsMissingBeyondTheLargestCount) {
  EXPECT_TRUE(KelMV::IsMissing(Exact(2147483648.0, 0.2, 0.1, 0)));
  EXPECT_TRUE(KelMV::IsMissing(Exact(infinite, 0.2, 0.1, 0)));
  EXPECT_NEAR(Exact(2147483647.0, 0.2, 0.2, 0), 0.05, 1e-4);
}

TEST(PowerbyCRelSampBionm, IsThatOfTheProportions) {
  for (int exact : {0, 1}) {
    EXPECT_EQ(PowerbyCRelSampBionm(40, 10, 4, 1, exact, 0.05),
              PowerbyPRelSampBionm(40, 0.25, 0.1, 1, exact, 0.05, nullptr));
    EXPECT_EQ(PowerbyCRelSampBionm(40, 30, 11, 1, exact, 0.05), -1);
    EXPECT_EQ(PowerbyCRelSampBionm(40, -1, 11, 1, exact, 0.05), -1);
  }
}

TEST(PowerbyMargPRelSampBionm, IsThatOfTheDiscordantPairs) {
  // Independent measures: the pairs are products of the marginal proportions.
  for (int exact : {0, 1}) {
    EXPECT_NEAR(PowerbyMargPRelSampBionm(40, 0.6, 0.3, 0, 0, exact, 0.05),
                PowerbyPRelSampBionm(40, 0.6 * 0.7, 0.4 * 0.3, 0, exact, 0.05, nullptr), 1e-14);
  }
}

TEST(PowerbyMargPRelSampBionm, TakesProbabilitiesNearZeroForZero) {
  // The correlation at which p21 vanishes, a hair off.
  const double largest = 0.4 * 0.4 / 0.24;
  EXPECT_EQ(PowerbyMargPRelSampBionm(30, 0.6, 0.4, largest + 1e-14, 1, 1, 0.05),
            PowerbyMargPRelSampBionm(30, 0.6, 0.4, largest, 1, 1, 0.05));
  EXPECT_NE(PowerbyMargPRelSampBionm(30, 0.6, 0.4, largest + 1e-14, 1, 1, 0.05), -1);
  EXPECT_EQ(PowerbyMargPRelSampBionm(30, 0.6, 0.4, largest + 1e-10, 1, 1, 0.05), -1);
}

TEST(PowerbyMargPRelSampBionm, IsMinusOneForInvalidInput) {
  const auto power = [](double n, double m1, double m2, double correlation) {
    return PowerbyMargPRelSampBionm(n, m1, m2, correlation, 0, 0, 0.05);
  };
  EXPECT_EQ(power(1, 0.6, 0.4, 0.2), -1);
  EXPECT_EQ(power(30, 0, 0.4, 0.2), -1);
  EXPECT_EQ(power(30, 0.6, 1, 0.2), -1);
  EXPECT_EQ(power(30, 0.6, 0.4, 1.01), -1);
  EXPECT_EQ(power(30, 0.6, 0.4, -1.01), -1);
}

TEST(PowerbyMargCRelSampBionm, IsThatOfTheProportions) {
  EXPECT_EQ(PowerbyMargCRelSampBionm(40, 24, 12, 0.2, 0, 1, 0.05),
            PowerbyMargPRelSampBionm(40, 0.6, 0.3, 0.2, 0, 1, 0.05));
  EXPECT_EQ(PowerbyMargCRelSampBionm(40, 40, 12, 0.2, 0, 1, 0.05), -1);
  EXPECT_EQ(PowerbyMargCRelSampBionm(40, -24, -12, 0.2, 0, 1, 0.05), -1);
  EXPECT_EQ(PowerbyMargCRelSampBionm(40, 24, 0, 0.2, 0, 1, 0.05), -1);
}

TEST(PowerReversebyPRelSampBionm, OfTheExactTestIsThatOfItsDefinition) {
  RandomDesigns designs(17);
  int compared = 0;
  while (compared < 12) {
    const Design d = designs.Next();
    if (d.p12 + d.p21 > 1 || d.p12 + d.p21 < 0.2 || d.alpha < 1e-4) continue;
    if (std::fabs(d.p12 - d.p21) < 0.5 * (d.p12 + d.p21)) continue;
    const double power = designs.Uniform(0.5, 0.9);
    CountingStop expectedStop;
    const auto objective = [&](double n) {
      return (n < 2 ? -1 : literal::PairedPower(n, d.p12, d.p21, d.oneSided, d.alpha, &expectedStop)) - power;
    };
    const double expected = OrMissing(kelpower::SolveIntegerSmallest(
        kelpower::SolveInteger(1, 400, objective, expectedStop), objective, expectedStop));
    CountingStop stop;
    EXPECT_EQ(PowerReversebyPRelSampBionm(power, d.p12, d.p21, d.oneSided, 1, d.alpha, &stop), expected) << d;
    EXPECT_EQ(stop.asked, expectedStop.asked) << d;
    ++compared;
  }
}

TEST(PowerReversebyPRelSampBionm, ReachesThePower) {
  const double n = ExactSize(0.8, 0.32, 0.08, 1);
  EXPECT_EQ(n, std::floor(n));
  EXPECT_GE(Exact(n, 0.32, 0.08, 1), 0.8);
  EXPECT_LT(Exact(n - 1, 0.32, 0.08, 1), 0.8);
  const double large = PowerReversebyPRelSampBionm(0.8, 0.32, 0.08, 1, 0, 0.05, nullptr);
  EXPECT_NEAR(LargeSample(large, 0.32, 0.08, 1), 0.8, 1e-10);
}

TEST(PowerReversebyPRelSampBionm, IsMissingWhereNoSizeReachesThePower) {
  EXPECT_TRUE(KelMV::IsMissing(ExactSize(0.8, 0.2, 0.2, 0)));
  EXPECT_TRUE(KelMV::IsMissing(ExactSize(1.5, 0.3, 0.2, 1)));
  EXPECT_TRUE(KelMV::IsMissing(ExactSize(0.8, 0.7, 0.5, 1)));  // probabilities that are none
  EXPECT_TRUE(KelMV::IsMissing(ExactSize(0.8, 0, 0, 0)));
}

TEST(PowerReversebyMargPRelSampBionm, IsThatOfTheDiscordantPairs) {
  EXPECT_EQ(PowerReversebyMargPRelSampBionm(0.8, 0.6, 0.3, 0, 0, 1, 0.05, nullptr),
            ExactSize(0.8, 0.6 * 0.7, 0.4 * 0.3, 0));
  EXPECT_EQ(PowerReversebyMargPRelSampBionm(0.8, 1, 0.3, 0, 0, 1, 0.05, nullptr), -1);
  EXPECT_EQ(PowerReversebyMargPRelSampBionm(0.8, 0.6, 0.3, 0, 0, 1, 1, nullptr), -1);
}

TEST(HalfCIRelSampBinom, HasItsMethods) {
  const double z = 1.9599639845400545;
  EXPECT_NEAR(HalfWidth(100, 0.3, 0.1, 0), z * std::sqrt((0.4 - 0.04) / 100), 1e-15);
  EXPECT_NEAR(HalfWidth(100, 0.3, 0.1, 0, 1) - HalfWidth(100, 0.3, 0.1, 0), 0.01, 1e-15);
  EXPECT_EQ(HalfWidth(100, 0.3, 0.1, 0, 2), HalfWidth(100, 0.3, 0.1, 0));
  EXPECT_GT(HalfWidth(100, 0.3, 0.1, 2), HalfWidth(100, 0.3, 0.1, 1));
  EXPECT_EQ(HalfWidth(100, 0.3, 0.1, 3), 0);
  for (int method : {1, 2}) EXPECT_NEAR(HalfWidth(1e300, 0.3, 0.1, method) / HalfWidth(1e300, 0.3, 0.1, 0), 1, 1e-12);
}

TEST(PowerReversebyHalfCIRelSampBinom, IsTheSmallestSizeWithTheHalfWidth) {
  for (int method : {0, 1, 2}) {
    const double n = PowerReversebyHalfCIRelSampBinom(0.05, 0.3, 0.15, method, 0.05, 0, nullptr);
    EXPECT_EQ(n, std::floor(n));
    EXPECT_LE(HalfWidth(n, 0.3, 0.15, method), 0.05);
    EXPECT_GT(HalfWidth(n - 1, 0.3, 0.15, method), 0.05);
  }
}

// Beyond 1,075 pairs the tails at such a level underflow.
TEST(PowerbyPRelSampBionm, OfTheExactTestEndsAtTheSmallestLevels) {
  for (const double alpha : {5e-324, 2e-323, 1e-310, 1e-300}) {
    const double power = PowerbyPRelSampBionm(3200, 0.25, 0.73, 1, 1, alpha, nullptr);
    EXPECT_GE(power, 0) << alpha;
    EXPECT_LE(power, PowerbyPRelSampBionm(3200, 0.25, 0.73, 1, 1, 1e-290, nullptr)) << alpha;
  }
}

}  // namespace
