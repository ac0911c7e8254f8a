#include "proportions/critical_counts.h"

#include <gtest/gtest.h>

#include "kelcommon/kel_dist_fun.h"

namespace kelpower::proportions {
namespace {

using KelMath::KelDistFun;

double Cdf(double count, double size, double p) {
  long error = 0;
  return KelDistFun::CdfBin(count, size, p, error);
}

TEST(BinomialInversion, IsThatOfSteppingThroughTheCounts) {
  for (const double size : {1.0, 2.0, 7.0, 20.0, 20.5, 137.0}) {
    for (const double p : {0.01, 0.3, 0.5, 0.97}) {
      for (const double probability : {0.0, 1e-9, 0.025, 0.05, 0.5, 0.8, 0.975}) {
        const double z = KelDistFun::IdfStdNorm(probability);
        double above = 0;
        while (above < size && Cdf(above, size, p) <= probability) ++above;
        EXPECT_EQ(FirstCountAbove(size, p, probability, z), above) << size << ' ' << p << ' ' << probability;
        double reaching = 0;
        while (reaching < size && Cdf(reaching, size, p) < probability) ++reaching;
        EXPECT_EQ(FirstCountReaching(size, p, probability, z), reaching) << size << ' ' << p << ' ' << probability;
      }
    }
  }
}

// 1/32 is exactly the probability of 5 successes of 5 under one half, and of none.
TEST(CriticalCounts, IncludeACountWhoseTailIsTheLevel) {
  const TailLevel tail(1.0 / 32);
  EXPECT_EQ(LowerCritical(5, 0.5, tail).count, 0);
  EXPECT_EQ(UpperCritical(5, 0.5, tail).count, 4);
}

TEST(CriticalCounts, AskOncePerCountThatSteppingWouldVisit) {
  const TailLevel tail(0.05);
  const CriticalCount lower = LowerCritical(20, 0.65, tail);
  EXPECT_EQ(lower.questions, lower.count + 2);
  const CriticalCount upper = UpperCritical(20, 0.65, tail);
  EXPECT_EQ(upper.questions, 20 - upper.count + 2);
}

}  // namespace
}  // namespace kelpower::proportions
