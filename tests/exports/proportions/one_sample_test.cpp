#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "frame/root_finders.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"
#include "literal_tests.h"
#include "support/answers.h"
#include "support/stop_requests.h"

namespace {

using keltest::CountingStop;
using keltest::OrMissing;

using KelCommon::KelMV;
using KelMath::KelDistFun;

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double quietNaN = std::numeric_limits<double>::quiet_NaN();

constexpr std::uint8_t corrections[] = {0, 1};

double Normal(double n, double alternative, double null, int oneSided, double alpha = 0.05, bool corrected = false) {
  return PowerOneSampBinom(n, alternative, null, 0, oneSided, alpha, corrected, nullptr);
}

double Exact(double n, double alternative, double null, int oneSided, double alpha = 0.05) {
  return PowerOneSampBinom(n, alternative, null, 1, oneSided, alpha, 0, nullptr);
}

double ExactSize(double power, double alternative, double null, int oneSided, double alpha = 0.05) {
  return PowerReverseOneSampBinom(power, alternative, null, 1, oneSided, alpha, 0, nullptr);
}

double HalfWidth(double n, double p, int method, std::uint8_t correction = 0) {
  return HalfCIOneSampBinom(n, p, method, 0.05, correction);
}

double SizeForHalfWidth(double halfWidth, double p, int method, std::uint8_t correction = 0) {
  return PowerReversebyHalfCIOneSampBinom(halfWidth, p, method, 0.05, correction, nullptr);
}

struct Design {
  double size;
  double alternative;
  double null;
  int oneSided;
  double alpha;
};

std::ostream& operator<<(std::ostream& out, const Design& d) {
  out.precision(17);
  return out << "N " << d.size << ", p1 " << d.alternative << ", p0 " << d.null << ", one-sided " << d.oneSided
             << ", alpha " << d.alpha;
}

/// Designs with many ties between the level and the null distribution: dyadic proportions and levels are exact.
class RandomDesigns {
public:
  explicit RandomDesigns(unsigned seed) : engine_(seed) {}

  Design Next() {
    const double whole = std::floor(std::exp(Uniform(0, std::log(250.0))));
    return {Uniform(0, 1) < 0.2 ? whole + Uniform(0, 1) : whole, Proportion(), Proportion(), Uniform(0, 1) < 0.5,
            Level()};
  }

  double Uniform(double low, double high) { return std::uniform_real_distribution<double>(low, high)(engine_); }

private:
  double Proportion() {
    const double kind = Uniform(0, 1);
    if (kind < 0.1) return std::floor(Uniform(0, 5)) / 4;
    if (kind < 0.4) return std::floor(Uniform(0, 21)) / 20;
    if (kind < 0.5) return std::pow(10.0, Uniform(-9, -1));
    return Uniform(0, 1);
  }

  double Level() {
    const double kind = Uniform(0, 1);
    if (kind < 0.2) return std::ldexp(1.0, -1 - static_cast<int>(Uniform(0, 12)));
    if (kind < 0.3) return Uniform(0, 1);
    if (kind < 0.4) return std::pow(10.0, Uniform(-15, -3));
    return std::vector<double>{0.1, 0.05, 0.025, 0.01, 0.001}[static_cast<std::size_t>(Uniform(0, 5))];
  }

  std::mt19937 engine_;
};

TEST(PowerOneSampBinom, OfTheExactTestIsThatOfItsDefinition) {
  RandomDesigns designs(20240611);
  for (int i = 0; i < 5000; ++i) {
    const Design d = designs.Next();
    CountingStop expectedStop;
    const double expected = literal::OneSamplePower(d.size, d.alternative, d.null, d.oneSided, d.alpha, &expectedStop);
    CountingStop stop;
    EXPECT_EQ(PowerOneSampBinom(d.size, d.alternative, d.null, 1, d.oneSided, d.alpha, 0, &stop), expected) << d;
    EXPECT_EQ(stop.asked, expectedStop.asked) << d;
    EXPECT_EQ(Exact(d.size, d.alternative, d.null, d.oneSided, d.alpha), expected) << d;
  }
}

TEST(PowerOneSampBinom, StopsWhereItsDefinitionStops) {
  RandomDesigns designs(7);
  for (int i = 0; i < 1000; ++i) {
    const Design d = designs.Next();
    const long trueFrom = 1 + static_cast<long>(designs.Uniform(0, d.size));
    CountingStop expectedStop(trueFrom);
    CountingStop stop(trueFrom);
    EXPECT_EQ(PowerOneSampBinom(d.size, d.alternative, d.null, 1, d.oneSided, d.alpha, 0, &stop),
              literal::OneSamplePower(d.size, d.alternative, d.null, d.oneSided, d.alpha, &expectedStop))
        << d;
    EXPECT_EQ(stop.asked, expectedStop.asked) << d;
  }
}

TEST(PowerOneSampBinom, OfTheExactTestTakesNaNsAsItsDefinitionDoes) {
  for (int oneSided : {0, 1}) {
    for (const Design& d : {Design{12.5, quietNaN, 0.4, oneSided, 0.05}, Design{12.5, 0.3, quietNaN, oneSided, 0.05},
                            Design{12.5, 0.3, 0.4, oneSided, quietNaN}, Design{quietNaN, 0.3, 0.4, oneSided, 0.05}}) {
      CountingStop expectedStop;
      CountingStop stop;
      EXPECT_EQ(PowerOneSampBinom(d.size, d.alternative, d.null, 1, oneSided, d.alpha, 0, &stop),
                literal::OneSamplePower(d.size, d.alternative, d.null, oneSided, d.alpha, &expectedStop))
          << d;
      EXPECT_EQ(stop.asked, expectedStop.asked) << d;
    }
  }
}

TEST(PowerOneSampBinom, MatchesPublishedPowers) {
  EXPECT_NEAR(Exact(20, 0.80, 0.65, 1), 0.411449, 5e-7);
  // The level attained is the power at the null proportion; 17 to 20 successes reject.
  long error = 0;
  EXPECT_NEAR(1 - KelDistFun::CdfBin(16, 20, 0.65, error), 0.044376, 5e-7);
  EXPECT_NEAR(Exact(20, 0.65 + 1e-13, 0.65, 1), 0.044376, 5e-7);
}

TEST(PowerOneSampBinom, AtTheNullProportionIsAtMostAlphaIfExact) {
  RandomDesigns designs(3);
  for (int i = 0; i < 2000; ++i) {
    const Design d = designs.Next();
    EXPECT_LE(Exact(d.size, d.null, d.null, d.oneSided, d.alpha), d.alpha * (1 + 1e-12) + 1e-15) << d;
  }
}

TEST(PowerOneSampBinom, AtTheNullProportionIsAlphaIfNormal) {
  for (double alpha : {0.2, 0.05, 0.001}) {
    EXPECT_NEAR(Normal(80, 0.3, 0.3, 0, alpha), alpha, 1e-15);
    EXPECT_NEAR(Normal(80, 0.3, 0.3, 1, alpha), alpha, 1e-15);
    EXPECT_LT(Normal(80, 0.3, 0.3, 0, alpha, true), alpha);
  }
}

TEST(PowerOneSampBinom, IsTheSameForFailures) {
  RandomDesigns designs(5);
  for (int i = 0; i < 500; ++i) {
    const Design d = designs.Next();
    EXPECT_NEAR(Normal(d.size, d.alternative, 0.35, 0), Normal(d.size, 1 - d.alternative, 0.65, 0), 1e-12) << d;
  }
  EXPECT_NEAR(Exact(83, 0.42, 0.3, 1), Exact(83, 0.58, 0.7, 1), 1e-14);
  EXPECT_NEAR(Exact(83, 0.42, 0.3, 0), Exact(83, 0.58, 0.7, 0), 1e-14);
}

TEST(PowerOneSampBinom, OfTheNormalApproximationGrowsWithSizeAndAlphaAndFallsWithTheCorrection) {
  for (double n = 10; n < 200; n += 10) {
    EXPECT_LT(Normal(n, 0.6, 0.45, 1), Normal(n + 10, 0.6, 0.45, 1));
    EXPECT_LT(Normal(n, 0.6, 0.45, 1, 0.01), Normal(n, 0.6, 0.45, 1, 0.05));
    EXPECT_LT(Normal(n, 0.6, 0.45, 1, 0.05, true), Normal(n, 0.6, 0.45, 1, 0.05, false));
  }
}

TEST(PowerOneSampBinom, IsMinusOneForInvalidInput) {
  for (int method : {0, 1}) {
    const auto power = [&](double n, double alternative, double null, double alpha) {
      return PowerOneSampBinom(n, alternative, null, method, 0, alpha, 0, nullptr);
    };
    EXPECT_EQ(power(0.5, 0.6, 0.4, 0.05), -1);
    EXPECT_EQ(power(-infinite, 0.6, 0.4, 0.05), -1);
    EXPECT_EQ(power(20, -1e-300, 0.4, 0.05), -1);
    EXPECT_EQ(power(20, 1.0000001, 0.4, 0.05), -1);
    EXPECT_EQ(power(20, 0.6, -0.1, 0.05), -1);
    EXPECT_EQ(power(20, 0.6, infinite, 0.05), -1);
    EXPECT_EQ(power(20, 0.6, 0.4, 0), -1);
    EXPECT_EQ(power(20, 0.6, 0.4, 1), -1);
    EXPECT_NE(power(1, 0, 1, 0.05), -1);
  }
}

TEST(PowerOneSampBinom, OfTheExactTestIsMissingBeyondTheLargestCount) {
  EXPECT_TRUE(KelMV::IsMissing(Exact(2147483648.0, 0.5, 0.4, 0)));
  EXPECT_TRUE(KelMV::IsMissing(Exact(1e300, 0.5, 0.4, 1)));
  EXPECT_TRUE(KelMV::IsMissing(Exact(infinite, 0.5, 0.4, 0)));
  EXPECT_NEAR(Exact(2147483647.0, 0.4, 0.4, 0), 0.05, 1e-5);
}

TEST(PowerOneSampBinom, OfTheExactTestApproachesTheNormalOne) {
  EXPECT_NEAR(Exact(1e6, 0.5015, 0.5, 0), Normal(1e6, 0.5015, 0.5, 0), 1e-3);
  EXPECT_NEAR(Exact(1e8, 0.50015, 0.5, 1), Normal(1e8, 0.50015, 0.5, 1), 1e-4);
}

TEST(PowerOneSampBinom, WithoutVarianceIsZeroOrOneIfNormal) {
  EXPECT_EQ(Normal(30, 1, 0.5, 1), 1);
  EXPECT_EQ(Normal(2, 1, 0.5, 1), 0);
}

TEST(PowerOneSampBinom, OfNegativeZeroIsThatOfZero) {
  for (const int oneSided : {0, 1})
    for (const double null : {0.02, 0.3}) EXPECT_EQ(Normal(30, -0.0, null, oneSided), Normal(30, 0.0, null, oneSided));
  EXPECT_EQ(Normal(30, -0.0, 0.3, 0), 1);
}

TEST(PowerReverseOneSampBinom, MatchesPublishedSizes) {
  EXPECT_EQ(ExactSize(0.8, 0.65, 0.80, 0), 72);
  EXPECT_EQ(ExactSize(0.8, 0.70, 0.80, 0), 144);
  EXPECT_EQ(ExactSize(0.8, 0.90, 0.80, 0), 107);
}

TEST(PowerReverseOneSampBinom, OfTheExactTestIsThatOfItsDefinition) {
  RandomDesigns designs(11);
  for (int i = 0; i < 150; ++i) {
    const Design d = designs.Next();
    if (std::fabs(d.alternative - d.null) < 0.12 || d.alpha < 1e-6) continue;
    const double power = designs.Uniform(0.3, 0.95);
    CountingStop expectedStop;
    const auto objective = [&](double n) {
      return literal::OneSamplePower(n, d.alternative, d.null, d.oneSided, d.alpha, &expectedStop) - power;
    };
    const double expected = OrMissing(kelpower::SolveIntegerSmallest(
        kelpower::SolveInteger(1, 400, objective, expectedStop), objective, expectedStop));
    CountingStop stop;
    EXPECT_EQ(PowerReverseOneSampBinom(power, d.alternative, d.null, 1, d.oneSided, d.alpha, 0, &stop), expected)
        << d << ", power " << power;
    EXPECT_EQ(stop.asked, expectedStop.asked) << d << ", power " << power;
  }
}

TEST(PowerReverseOneSampBinom, ReachesThePowerIfNormal) {
  for (int oneSided : {0, 1}) {
    const double n = PowerReverseOneSampBinom(0.9, 0.42, 0.3, 0, oneSided, 0.05, 1, nullptr);
    EXPECT_NEAR(Normal(n, 0.42, 0.3, oneSided, 0.05, true), 0.9, 1e-10);
  }
}

TEST(PowerReverseOneSampBinom, IsMinusOneForEqualProportions) {
  EXPECT_EQ(ExactSize(0.8, 0.5, 0.5, 0), -1);
  EXPECT_EQ(ExactSize(0.8, 0.5 + 9e-15, 0.5, 0), -1);
  EXPECT_NE(ExactSize(0.8, 1, 0, 0), -1);
  EXPECT_EQ(PowerReverseOneSampBinom(0.8, 0.5, 0.5, 0, 0, 0.05, 0, nullptr), -1);
}

TEST(PowerReverseOneSampBinom, IsMissingWhereNoSizeReachesThePower) {
  EXPECT_TRUE(KelMV::IsMissing(ExactSize(1.5, 0.7, 0.5, 0)));
  EXPECT_TRUE(KelMV::IsMissing(ExactSize(1.5, 0.7, 0.5, 1)));
  EXPECT_TRUE(KelMV::IsMissing(ExactSize(0.8, 0.5 + 1e-7, 0.5, 1)));
  EXPECT_TRUE(KelMV::IsMissing(ExactSize(quietNaN, 0.7, 0.5, 1)) || ExactSize(quietNaN, 0.7, 0.5, 1) >= 1);
  CountingStop stop(3);
  EXPECT_TRUE(KelMV::IsMissing(PowerReverseOneSampBinom(1.5, 0.7, 0.5, 1, 0, 0.05, 0, &stop)));
}

TEST(PowerReverseOneSampBinom, FindsSizesOfMillions) {
  const double n = ExactSize(0.8, 0.5005, 0.5, 0);
  EXPECT_GT(n, 7.8e6);
  EXPECT_LT(n, 7.9e6);
  EXPECT_NEAR(Exact(n, 0.5005, 0.5, 0), 0.8, 1e-4);
}

TEST(HalfCIOneSampBinom, MatchesPublishedWidths) { EXPECT_NEAR(HalfWidth(213, 0.75, 3), 0.0601961, 5e-8); }

TEST(HalfCIOneSampBinom, IsNearWaldsForLargeSamples) {
  for (int method = 1; method <= 6; ++method) {
    EXPECT_NEAR(HalfWidth(1e8, 0.3, method) / HalfWidth(1e8, 0.3, 0), 1, 1e-4) << method;
  }
}

TEST(HalfCIOneSampBinom, HasNoOverflowOfItsOwn) {
  for (int method : {0, 1, 2, 5, 6}) {
    EXPECT_NEAR(HalfWidth(1e300, 0.3, method) / HalfWidth(1e300, 0.3, 0), 1, 1e-12) << method;
  }
}

TEST(HalfCIOneSampBinom, IsSymmetricInSuccessesAndFailures) {
  for (int method = 0; method <= 6; ++method) {
    for (const std::uint8_t correction : corrections) {
      EXPECT_NEAR(HalfWidth(37, 0.2, method, correction), HalfWidth(37, 0.8, method, correction), 1e-14);
    }
  }
}

TEST(HalfCIOneSampBinom, ClopperPearsonEndsHaveTheirTailProbabilities) {
  // x = 8 of 40: the interval's ends put alpha / 2 on 8 and more, and on 8 and fewer.
  const double lower = KelDistFun::IdfBeta(0.025, 8, 33);
  const double upper = KelDistFun::IdfBeta(0.975, 9, 32);
  long error = 0;
  EXPECT_NEAR(1 - KelDistFun::CdfBin(7, 40, lower, error), 0.025, 1e-13);
  EXPECT_NEAR(KelDistFun::CdfBin(8, 40, upper, error), 0.025, 1e-13);
  EXPECT_NEAR(HalfWidth(40, 0.2, 3), (upper - lower) / 2, 1e-15);
}

TEST(HalfCIOneSampBinom, TellsTheCorrectionsApart) {
  EXPECT_NEAR(HalfWidth(50, 0.3, 0, 1) - HalfWidth(50, 0.3, 0, 0), 0.01, 1e-15);
  EXPECT_EQ(HalfWidth(50, 0.3, 0, 2), HalfWidth(50, 0.3, 0, 0));
  EXPECT_EQ(HalfWidth(50, 0.3, 5, 2), HalfWidth(50, 0.3, 5, 1));
  EXPECT_GT(HalfWidth(50, 0.3, 5, 2), HalfWidth(50, 0.3, 5, 0));
}

TEST(HalfCIOneSampBinom, IsZeroForAnUnknownMethod) {
  EXPECT_EQ(HalfWidth(50, 0.3, 7), 0);
  EXPECT_EQ(HalfWidth(50, 0.3, -1), 0);
}

TEST(PowerReversebyHalfCIOneSampBinom, MatchesPublishedSizes) {
  EXPECT_NEAR(SizeForHalfWidth(0.07, 0.4, 0, 0), 188.1531, 5e-5);
  EXPECT_NEAR(SizeForHalfWidth(0.07, 0.4, 0, 1), 202.1865, 5e-5);
}

TEST(PowerReversebyHalfCIOneSampBinom, HasTheHalfWidth) {
  for (int method = 0; method <= 6; ++method) {
    for (const std::uint8_t correction : corrections) {
      const double n = SizeForHalfWidth(0.04, 0.35, method, correction);
      EXPECT_NEAR(HalfWidth(n, 0.35, method, correction), 0.04, 1e-12) << method;
    }
  }
}

TEST(PowerReversebyHalfCIOneSampBinom, TakesAnUnknownMethodForReached) {
  EXPECT_EQ(SizeForHalfWidth(0.04, 0.35, 7), 400);
}

TEST(PowerReversebyHalfCIOneSampBinom, IsMissingForAnImpossibleWidth) {
  for (int method = 1; method <= 6; ++method) {
    EXPECT_TRUE(KelMV::IsMissing(SizeForHalfWidth(-0.1, 0.35, method))) << method;
  }
}

}  // namespace
