#include "expected_power/expected_power.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "frame/rejection.h"
#include "kelcommon/kel_dist_fun.h"
#include "support/reference_rows.h"
#include "support/share_of_studies.h"

namespace kelpower::expected_power {
namespace {

using KelMath::KelDistFun;

double Phi(double z) { return KelDistFun::CdfStdNorm(z); }

/// The upper tail of a normal statistic, in standard deviations of one observation.
double UpperPower(double size, double effect, double z) { return Phi(effect * std::sqrt(size) - z); }

/// Its expectation: the statistic is normal over the belief too.
double ExpectedUpperPower(double size, const Belief& belief, double z) {
  const double root = std::sqrt(size);
  const double spread = std::hypot(1, belief.sd * root);
  return Phi(((belief.mean - belief.null) * root - z) / spread);
}

TEST(ExpectedPower, OfANormalStatisticIsThatOfItsClosedForm) {
  for (const double z : {0.3, 1.6448536269514722, 1.959963984540054, 6.0}) {
    for (const double sd : {1e-12, 1e-4, 0.02, 0.3, 5.0}) {
      for (const double mean : {-2.0, 0.0, 1e-9, 0.01, 0.5, 1.3}) {
        for (const double null : {0.0, 0.45}) {
          const Belief belief{mean, sd, null};
          for (double size = 1; size < 1e17; size *= 7) {
            const auto above = [&](double effect) { return UpperPower(size, effect - null, z); };
            const auto either = [&](double effect) { return above(effect) + UpperPower(size, null - effect, z); };
            const double expectedAbove = ExpectedUpperPower(size, belief, z);
            const double expectedBelow = ExpectedUpperPower(size, {-mean, sd, -null}, z);
            // The effect and the null are doubles, and so the distance between them is known to some 1e-16 only.
            const double rounding = 2e-16 * std::sqrt(size) * (std::fabs(mean) + null);
            if (rounding > 1e-11) continue;
            EXPECT_NEAR(*ExpectedPower(above, belief), expectedAbove, 2e-11)
                << z << ' ' << sd << ' ' << mean << ' ' << null << ' ' << size;
            EXPECT_NEAR(*ExpectedPower(either, belief), expectedAbove + expectedBelow, 2e-11)
                << z << ' ' << sd << ' ' << mean << ' ' << null << ' ' << size;
          }
        }
      }
    }
  }
}

TEST(ExpectedPower, AgreesWithMultiplePrecision) {
  const auto rows = ReferenceRows(KELPOWER_REFERENCES "/t_test.csv");
  ASSERT_EQ(rows.size(), 6u);
  for (const auto& row : rows) {
    const TTest test = TTest::OneSided(row[3], row[2] - 1);
    const auto powerAt = [&](double effect) {
      const double noncentrality = effect * std::sqrt(row[2]);
      return row[4] == 1 ? test.PowerUpperTail(noncentrality) : test.PowerBothTails(noncentrality);
    };
    EXPECT_NEAR(*ExpectedPower(powerAt, {row[0], row[1]}), row[5], 1e-12) << row[0] << ' ' << row[2];
  }
}

/// With a normal effect of standard deviation S the numerator of t has the variance 1 + n S^2 instead of 1, and so t is
/// noncentral t times its root.
double ExpectedUpperPowerOfT(double size, const Belief& belief, double t) {
  const double spread = std::sqrt(1 + size * belief.sd * belief.sd);
  return 1 - KelDistFun::NonCentralCdfT(t / spread, size - 1, belief.mean * std::sqrt(size) / spread, 0);
}

TEST(ExpectedPower, OfATTestIsThatOfItsClosedForm) {
  for (const double size : {3.0, 20.0, 100.0, 1e4, 1e8, 1e12}) {
    const TTest oneSided = TTest::OneSided(0.05, size - 1);
    const TTest twoSided = TTest::TwoSided(0.05, size - 1);
    for (const Belief& belief : {Belief{0.5, 0.2}, Belief{0, 0.1}, Belief{0.3, 0.001}, Belief{-0.2, 0.4}}) {
      const double root = std::sqrt(size);
      const auto above = [&](double effect) { return oneSided.PowerUpperTail(effect * root); };
      EXPECT_NEAR(*ExpectedPower(above, belief), ExpectedUpperPowerOfT(size, belief, oneSided.critical), 1e-10) << size;
      const auto either = [&](double effect) { return twoSided.PowerBothTails(effect * root); };
      const Belief mirrored{-belief.mean, belief.sd};
      EXPECT_NEAR(*ExpectedPower(either, belief),
                  ExpectedUpperPowerOfT(size, belief, twoSided.critical) +
                      ExpectedUpperPowerOfT(size, mirrored, twoSided.critical),
                  1e-10)
          << size;
    }
  }
}

TEST(ExpectedPower, IsTheShareOfStudiesOfDrawnEffects) {
  const int size = 30;
  const TTest test = TTest::OneSided(0.025, size - 1);
  const Belief belief{0.4, 0.25};
  const auto share = Simulate(20000, 11, [&](auto& engine) {
    const double effect = std::normal_distribution<double>(belief.mean, belief.sd)(engine);
    const Moments sample = DrawNormal(engine, size, effect, 1);
    return sample.mean / std::sqrt(sample.variance / size) > test.critical;
  });
  const auto powerAt = [&](double effect) { return test.PowerUpperTail(effect * std::sqrt(30.0)); };
  EXPECT_LT(share.StandardErrorsFrom(*ExpectedPower(powerAt, belief)), kMostStandardErrors);
}

TEST(ExpectedPower, OfACertainEffectIsThePower) {
  const auto powerAt = [](double effect) { return UpperPower(50, effect, 1.96); };
  EXPECT_EQ(*ExpectedPower(powerAt, {0.4, 0}), powerAt(0.4));
  EXPECT_NEAR(*ExpectedPower(powerAt, {0.4, 1e-300}), powerAt(0.4), 1e-14);
  EXPECT_NEAR(*ExpectedPower([](double) { return 1.0; }, {0.4, 3}), 1, 1e-14);
}

TEST(ExpectedPower, AnswersEveryBelief) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const auto powerAt = [](double effect) { return UpperPower(50, effect, 1.96); };
  EXPECT_EQ(ExpectedPower(powerAt, {0.4, -1}).Reason(), NoValue::Refused);
  EXPECT_TRUE(std::isnan(*ExpectedPower(powerAt, {0.4, nan})));
  EXPECT_TRUE(std::isnan(*ExpectedPower(powerAt, {nan, 1})));
  EXPECT_TRUE(std::isnan(*ExpectedPower(powerAt, {0.4, HUGE_VAL})));
  EXPECT_TRUE(std::isnan(*ExpectedPower([&](double) { return nan; }, {0.4, 1})));
}

TEST(LimitOfExpectedPower, IsApproachedFromBelow) {
  const Belief belief{0.3, 0.3};
  EXPECT_NEAR(*Limit(belief, Success::AboveNull), 0.8413447460685429, 1e-15);
  EXPECT_EQ(*Limit(belief, Success::EitherDirection), 1);
  double last = 0;
  for (double size = 2; size < 1e15; size *= 10) {
    const double power = *ExpectedPower([&](double effect) { return UpperPower(size, effect, 1.96); }, belief);
    EXPECT_GT(power, last);
    last = power;
  }
  EXPECT_NEAR(last, *Limit(belief, Success::AboveNull), 1e-6);
  EXPECT_EQ(*Limit({0.3, 0}, Success::AboveNull), 1);
  EXPECT_EQ(*Limit({-0.3, 0}, Success::AboveNull), 0);
  EXPECT_EQ(*Limit({0.3, 0.1, 0.3}, Success::AboveNull), 0.5);
  EXPECT_EQ(Limit({0.3, 0, 0.3}, Success::AboveNull).Reason(), NoValue::Refused);
  EXPECT_EQ(Limit({0.3, -1}, Success::EitherDirection).Reason(), NoValue::Refused);
}

/// The expected power of a t test of one mean in standard deviations.
Answer ExpectedOfT(Success success, double size, const Belief& belief) {
  const double root = std::sqrt(size);
  if (success == Success::AboveNull) {
    const TTest test = TTest::OneSided(0.025, size - 1);
    return ExpectedPower([&](double effect) { return test.PowerUpperTail(effect * root); }, belief);
  }
  const TTest test = TTest::TwoSided(0.05, size - 1);
  return ExpectedPower([&](double effect) { return test.PowerBothTails(effect * root); }, belief);
}

Answer SizeOfT(const Belief& belief, Success success, double wished, const Sizes& sizes, Stop stop = {}) {
  return FirstSize([&](double size) { return ExpectedOfT(success, size, belief); }, belief, success, wished, sizes,
                   stop);
}

TEST(SizeForExpectedPower, IsTheOneFoundByTryingAll) {
  int searched = 0;
  for (const Belief& belief : {Belief{0.5, 0.2}, Belief{0.5, 0}, Belief{0.2, 0.5}, Belief{-0.1, 0.5}}) {
    for (const Success success : {Success::AboveNull, Success::EitherDirection}) {
      for (const double wished : {0.1, 0.35, 0.6, 0.9}) {
        if (*Limit(belief, success) <= wished + 0.05) continue;
        const double found = *SizeOfT(belief, success, wished, {2});
        double size = 2;
        while (size < 60 && *ExpectedOfT(success, size, belief) < wished) ++size;
        if (size < 60) {
          EXPECT_EQ(found, size) << belief.mean << ' ' << wished;
        }
        EXPECT_GE(*ExpectedOfT(success, found, belief), wished);
        EXPECT_TRUE(found == 2 || *ExpectedOfT(success, found - 1, belief) < wished);
        ++searched;
      }
    }
  }
  EXPECT_GT(searched, 20);
}

// What the bisection rests on for one direction: rising, or falling and then rising.
TEST(SizeForExpectedPower, HasOneCrossing) {
  for (const double mean : {-0.6, -0.2, 0.0, 0.2, 0.6}) {
    for (const double sd : {0.05, 0.3, 1.0}) {
      bool hasRisen = mean >= 0;
      double last = -1;
      for (double size = 2; size < 1e5; size = std::ceil(size * 1.6)) {
        const double power = *ExpectedOfT(Success::AboveNull, size, {mean, sd});
        const double slack = 1e-11;
        if (last >= 0 && power > last + slack) hasRisen = true;
        if (last >= 0 && hasRisen) {
          EXPECT_GE(power, last - slack) << mean << ' ' << sd << ' ' << size;
        }
        last = power;
      }
    }
  }
}

TEST(SizeForExpectedPower, SaysWhyThereIsNone) {
  const Belief belief{0.3, 0.3};
  EXPECT_EQ(SizeOfT(belief, Success::AboveNull, 0.85, {2}).Reason(), NoValue::NotReached);
  EXPECT_EQ(SizeOfT(belief, Success::AboveNull, 0.8413, {2, 1000}).Reason(), NoValue::NotReached);
  EXPECT_EQ(SizeOfT(belief, Success::AboveNull, 0.5, {20, 10}).Reason(), NoValue::NotReached);
  EXPECT_EQ(SizeOfT(belief, Success::AboveNull, 1, {2}).Reason(), NoValue::Refused);
  EXPECT_EQ(SizeOfT({0, 0}, Success::AboveNull, 0.8, {2}).Reason(), NoValue::Refused);
  EXPECT_EQ(SizeOfT(belief, Success::AboveNull, 0.8, {2}, [] { return true; }).Reason(), NoValue::Stopped);
  const auto nan = [](double) { return Answer(std::numeric_limits<double>::quiet_NaN()); };
  EXPECT_EQ(FirstSize(nan, belief, Success::AboveNull, 0.8, {2}).Reason(), NoValue::NotReached);
  const auto uncalled = [](double) -> Answer {
    ADD_FAILURE() << "the limit is known before";
    return 0;
  };
  EXPECT_EQ(FirstSize(uncalled, belief, Success::AboveNull, 0.85, {2}).Reason(), NoValue::NotReached);
  EXPECT_EQ(SizeOfT(belief, Success::AboveNull, 0.5, {0}).Reason(), NoValue::Refused);
  EXPECT_EQ(SizeOfT(belief, Success::AboveNull, 0.5, {2, 1e10}).Reason(), NoValue::Refused);
  const auto refused = [](double) { return Answer(NoValue::Refused); };
  EXPECT_EQ(FirstSize(refused, belief, Success::AboveNull, 0.8, {2}).Reason(), NoValue::NotReached);
}

}  // namespace
}  // namespace kelpower::expected_power
