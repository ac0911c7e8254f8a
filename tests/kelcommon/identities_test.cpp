#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "kelcommon/kel_dist_fun.h"

using KelMath::KelDistFun;

// What must hold between the functions whatever their method. The draws are seeded, so that a failure comes back.
namespace {

constexpr unsigned seed = 20261121;
constexpr int draws = 2000;

class Draw {
public:
  double Uniform(double low, double high) { return low + (high - low) * unit_(engine_); }
  double LogUniform(double low, double high) { return low * std::pow(high / low, unit_(engine_)); }
  double Whole(double low, double high) { return std::floor(Uniform(low, high + 1)); }

private:
  std::mt19937_64 engine_{seed};
  std::uniform_real_distribution<double> unit_{0, 1};
};

using DiscreteFunction = double (*)(double, double, double, long& err) noexcept;

double WithoutError(DiscreteFunction function, double first, double second, double third) {
  long err = -1;
  const double value = function(first, second, third, err);
  EXPECT_EQ(err, 0);
  return value;
}

double CdfBin(double x, double n, double p) { return WithoutError(KelDistFun::CdfBin, x, n, p); }
double IdfBin(double prob, double n, double p) { return WithoutError(KelDistFun::IdfBin, prob, n, p); }
double PdfBin(double x, double n, double p) { return WithoutError(KelDistFun::PdfBin, x, n, p); }
double PdfNegBin(double x, double r, double p) { return WithoutError(KelDistFun::PdfNegBin, x, r, p); }

TEST(Normal, TailsAddToOne) {
  Draw draw;
  for (int i = 0; i < draws; ++i) {
    const double z = draw.Uniform(-9, 9);
    EXPECT_NEAR(KelDistFun::CdfStdNorm(z) + KelDistFun::CdfStdNorm(-z), 1, 3e-16) << z;
  }
}

TEST(Normal, QuantilesAreOddAroundOneHalf) {
  Draw draw;
  for (int i = 0; i < draws; ++i) {
    const double p = 1 - draw.LogUniform(1e-10, 0.5);
    EXPECT_EQ(KelDistFun::IdfStdNorm(p), -KelDistFun::IdfStdNorm(1 - p)) << p;
  }
}

TEST(Normal, QuantileUndoesTheProbability) {
  Draw draw;
  for (int i = 0; i < draws; ++i) {
    const double z = draw.Uniform(-37, 1);
    const double p = KelDistFun::CdfStdNorm(z);
    EXPECT_NEAR(KelDistFun::IdfStdNorm(p), z, 4e-15 * std::fmax(1, std::fabs(z))) << z;
  }
}

TEST(Normal, ProbabilityRises) {
  double last = 0;
  for (int i = -39000; i <= 10000; ++i) {
    const double probability = KelDistFun::CdfStdNorm(i / 1000.0);
    EXPECT_GE(probability, last) << i;
    last = probability;
  }
}

TEST(Beta, TailsOfMirroredShapesAddToOne) {
  Draw draw;
  for (int i = 0; i < draws; ++i) {
    const double a = draw.LogUniform(0.01, 1e7);
    const double b = draw.LogUniform(0.01, 1e7);
    // Sixty-fourths are mirrored without rounding.
    const double x = draw.Whole(1, 63) / 64;
    EXPECT_NEAR(KelDistFun::CdfBeta(x, a, b) + KelDistFun::CdfBeta(1 - x, b, a), 1, 4e-16)
        << x << ", " << a << ", " << b;
  }
}

TEST(Beta, IsOneHalfInTheMiddleOfEqualShapes) {
  Draw draw;
  for (int i = 0; i < draws; ++i) {
    const double a = draw.LogUniform(1e-3, 1e12);
    EXPECT_NEAR(KelDistFun::CdfBeta(0.5, a, a), 0.5, 1e-15) << a;
  }
}

TEST(Beta, HasTheClosedFormsOfAShapeOne) {
  Draw draw;
  for (int i = 0; i < draws; ++i) {
    const double a = draw.LogUniform(0.1, 1e4);
    const double x = draw.Uniform(0.001, 1);
    const double power = std::pow(x, a);
    EXPECT_NEAR(KelDistFun::CdfBeta(x, a, 1), power, 4e-15 * std::fmax(1, -std::log(std::fmax(power, 1e-300))) * power)
        << x << ", " << a;
    EXPECT_NEAR(KelDistFun::CdfBeta(x, 1, a), -std::expm1(a * std::log1p(-x)), 1e-15) << x << ", " << a;
  }
}

// Nearly all mass is at the ends, and between them the probability rises by less than a rounding error.
TEST(Beta, TinyShapesPutTheMassAtTheEnds) {
  for (double x : {1e-300, 0.25, 1 - 1e-16}) {
    EXPECT_DOUBLE_EQ(KelDistFun::CdfBeta(x, 1e-30, 3e-30), 0.75);
    EXPECT_DOUBLE_EQ(KelDistFun::CdfBeta(x, 3e-300, 1e-300), 0.25);
    EXPECT_EQ(KelDistFun::CdfBeta(x, 1e-30, 1), 1);
    EXPECT_EQ(KelDistFun::CdfBeta(x, 1, 1e-30), 0);
  }
}

TEST(Beta, QuantilesOfTinyShapesAreInTheUnitInterval) {
  for (double shape = 1e-21; shape < 1e-9; shape *= 1.01)
    for (const double p : {0.3, 0.49999999999999994, 0.5, 0.50000000000000011, 0.7})
      for (const double other : {shape, shape * 1.000000000000001}) {
        const double x = KelDistFun::IdfBeta(p, shape, other);
        EXPECT_GE(x, 0) << p << " " << shape;
        EXPECT_LE(x, 1) << p << " " << shape;
      }
}

TEST(Beta, QuantileUndoesTheProbability) {
  Draw draw;
  for (int i = 0; i < draws; ++i) {
    const double a = draw.LogUniform(0.1, 1e6);
    const double b = draw.LogUniform(0.1, 1e6);
    const double p = draw.LogUniform(1e-12, 1);
    const double x = KelDistFun::IdfBeta(p, a, b);
    ASSERT_GE(x, 0);
    ASSERT_LE(x, 1);
    // A quantile has an error of half a unit in the last place at best: the probabilities of its neighbours tell its
    // own.
    const double low = KelDistFun::CdfBeta(x * (1 - 4e-15), a, b);
    const double high = KelDistFun::CdfBeta(std::fmin(1, x * (1 + 4e-15)), a, b);
    EXPECT_LE(low, p * (1 + 1e-13)) << p << ", " << a << ", " << b;
    EXPECT_GE(high, p * (1 - 1e-13)) << p << ", " << a << ", " << b;
  }
}

TEST(Beta, QuantileRisesWithTheProbability) {
  Draw draw;
  for (int i = 0; i < 100; ++i) {
    const double a = draw.LogUniform(0.1, 1e4);
    const double b = draw.LogUniform(0.1, 1e4);
    double last = 0;
    for (int k = 1; k < 50; ++k) {
      const double x = KelDistFun::IdfBeta(k / 50.0, a, b);
      EXPECT_GE(x, last) << k << ", " << a << ", " << b;
      last = x;
    }
  }
}

TEST(Binomial, MassesAddToTheLowerProbabilities) {
  Draw draw;
  for (int i = 0; i < 200; ++i) {
    const double n = draw.Whole(1, 300);
    const double p = draw.Uniform(0, 1);
    double sum = 0;
    for (double k = 0; k <= n; ++k) {
      sum += PdfBin(k, n, p);
      EXPECT_NEAR(CdfBin(k, n, p), sum, 2e-14) << k << ", " << n << ", " << p;
    }
    EXPECT_NEAR(sum, 1, 2e-14) << n << ", " << p;
  }
}

TEST(Binomial, QuantileIsTheLargestCountWithinTheProbability) {
  Draw draw;
  for (int i = 0; i < draws; ++i) {
    const double n = draw.Whole(0, 1) == 0 ? draw.Whole(0, 400) : draw.LogUniform(0.1, 1e15);
    const double p = draw.Whole(0, 3) == 0 ? 0.5 : draw.Uniform(0, 1);
    const double prob = draw.Whole(0, 3) == 0 ? draw.LogUniform(1e-300, 1) : draw.Uniform(0, 1);
    const double k = IdfBin(prob, n, p);
    EXPECT_EQ(k, std::floor(k));
    EXPECT_GE(k, -1);
    EXPECT_LE(CdfBin(k, n, p), prob) << prob << ", " << n << ", " << p;
    EXPECT_GT(CdfBin(k + 1, n, p), prob) << prob << ", " << n << ", " << p;
  }
}

TEST(Binomial, SignTestMeetsPowersOfTwo) {
  for (double n = 1; n <= 53; ++n) {
    const double level = std::ldexp(1.0, static_cast<int>(-n));
    EXPECT_EQ(CdfBin(0, n, 0.5), level);
    EXPECT_EQ(CdfBin(n - 1, n, 0.5), 1 - level);
    EXPECT_EQ(IdfBin(level, n, 0.5), 0);
  }
}

TEST(Binomial, SignTestJoinsTheGeneralMethod) {
  const double nearlyHalf = std::nextafter(0.5, 1);
  for (double n = 1; n <= 53; ++n)
    for (double k = 0; k < n; ++k) EXPECT_NEAR(CdfBin(k, n, 0.5), CdfBin(k, n, nearlyHalf), 3e-15) << k << ", " << n;
}

TEST(Binomial, MirrorsSuccessAndFailure) {
  Draw draw;
  for (int i = 0; i < draws; ++i) {
    const double n = draw.Whole(1, 1e6);
    const double p = draw.Whole(1, 63) / 64;
    const double k = std::floor(n * p + draw.Uniform(-4, 4) * std::sqrt(n * p * (1 - p)));
    if (k < 0 || k >= n) continue;
    EXPECT_NEAR(CdfBin(k, n, p) + CdfBin(n - k - 1, n, 1 - p), 1, 4e-16) << k << ", " << n << ", " << p;
    EXPECT_NEAR(PdfBin(k, n, p), PdfBin(n - k, n, 1 - p), 1e-13 * PdfBin(k, n, p)) << k << ", " << n << ", " << p;
  }
}

TEST(Binomial, ProbabilityRisesWithTheCountAndFallsWithTheChance) {
  Draw draw;
  constexpr double roundings = 3e-15;
  for (int i = 0; i < draws; ++i) {
    const double n = draw.LogUniform(1, 1e9);
    const double p = draw.Uniform(0.01, 0.98);
    const double k = std::floor(draw.Uniform(0, n));
    EXPECT_LE(CdfBin(k, n, p), CdfBin(k + 1, n, p) + roundings) << k << ", " << n << ", " << p;
    EXPECT_GE(CdfBin(k, n, p), CdfBin(k, n, p + 0.01) - roundings) << k << ", " << n << ", " << p;
  }
}

// The neighbouring masses have the ratio (n - x) p / ((x + 1) (1 - p)), for real x and n too.
TEST(Binomial, MassesHaveTheirRecurrence) {
  Draw draw;
  for (int i = 0; i < draws; ++i) {
    const double n = draw.LogUniform(2, 1e5);
    const double p = draw.Uniform(0.01, 0.99);
    const double x = draw.Uniform(0, n - 1);
    const double mass = PdfBin(x, n, p);
    if (mass < 1e-200) continue;
    const double ratio = (n - x) * p / ((x + 1) * (1 - p));
    EXPECT_NEAR(PdfBin(x + 1, n, p) / mass / ratio, 1, 1e-12) << x << ", " << n << ", " << p;
  }
}

TEST(NegativeBinomial, MassesAddToTheBetaProbability) {
  Draw draw;
  for (int i = 0; i < 200; ++i) {
    const double r = draw.LogUniform(0.1, 100);
    const double p = draw.Uniform(0.1, 0.9);
    double sum = 0;
    for (double x = 0; x < 200; ++x) {
      sum += PdfNegBin(x, r, p);
      EXPECT_NEAR(KelDistFun::CdfBeta(p, r, x + 1), sum, 1e-14) << x << ", " << r << ", " << p;
    }
  }
}

TEST(LogGamma, HasItsRecurrence) {
  Draw draw;
  for (int i = 0; i < draws; ++i) {
    const double x = draw.LogUniform(1e-3, 1e6);
    const double next = KelDistFun::orvadnlgam(x + 1);
    const double scale = std::fmax(1, std::fabs(next));
    // x + 1 is rounded, which the digamma function, about log(x), passes on.
    EXPECT_NEAR(next, KelDistFun::orvadnlgam(x) + std::log(x), 1e-15 * scale + 2e-16 * x * std::log(2 + x)) << x;
  }
}

TEST(LogGamma, KnowsHalfOrders) { EXPECT_NEAR(KelDistFun::orvadnlgam(0.5), 0.57236494292470008707, 2e-16); }

// t squared is F with one numerator degree of freedom, and the central t is a beta distribution.
TEST(StudentsT, SquaresToF) {
  Draw draw;
  for (int i = 0; i < 300; ++i) {
    const double df = draw.LogUniform(1, 1e5);
    const double p = draw.Uniform(0.55, 0.999);
    const double t = KelDistFun::IdfT(p, df, 0, 0);
    const double f = KelDistFun::IdfF(2 * p - 1, 1, df);
    EXPECT_NEAR(t * t / f, 1, 1e-11) << p << ", " << df;
  }
}

TEST(StudentsT, CentralProbabilityUndoesTheQuantile) {
  Draw draw;
  for (int i = 0; i < 300; ++i) {
    const double df = draw.LogUniform(1, 1e5);
    const double p = draw.Uniform(0.001, 0.999);
    EXPECT_NEAR(KelDistFun::NonCentralCdfT(KelDistFun::IdfT(p, df, 0, 0), df, 0, 0), p, 2e-14) << p << ", " << df;
  }
}

TEST(FisherF, CentralProbabilityUndoesTheQuantile) {
  Draw draw;
  for (int i = 0; i < 300; ++i) {
    const double df1 = draw.Whole(1, 40);
    const double df2 = draw.LogUniform(1, 1e5);
    const double p = draw.Uniform(0.001, 0.999);
    EXPECT_NEAR(KelDistFun::NonCentralCdfF(KelDistFun::IdfF(p, df1, df2), df1, df2, 0, 0), p, 2e-14)
        << p << ", " << df1 << ", " << df2;
  }
}

}  // namespace
