#include <gtest/gtest.h>

#include <cmath>

#include "chi_square/effect.h"
#include "chi_square/power.h"
#include "kelcommon/distributions.h"
#include "support/drawn_counts.h"
#include "support/share_of_studies.h"

// Frequencies drawn and tested. The power is that of large samples: they are large, and one small design is counted out,
// with the difference that the documentation states.
namespace kelpower::chi_square {
namespace {

constexpr int studies = 1000000;
constexpr double alpha = 0.05;

void ExpectFit(const Numbers& null, const Numbers& expected, long n, unsigned seed) {
  const Numbers p0 = Scaled(null);
  const Numbers p1 = Scaled(expected);
  const double df = static_cast<double>(null.size()) - 1;
  const double critical = kelcommon::IsfChiSquare(alpha, df);
  Numbers counts(null.size());
  const auto share = Simulate(studies, seed, [&](auto& engine) {
    DrawCounts(engine, n, p1, counts);
    return OfFit(counts, p0, static_cast<double>(n)).pearson > critical;
  });
  const double power = *Power(df, alpha, *EffectOfFit(null, expected, Statistic::Pearson), static_cast<double>(n));
  EXPECT_LT(share.StandardErrorsFrom(power), kMostStandardErrors) << share.share << ", " << power;
}

void ExpectTable(const Numbers& table, std::size_t rows, long n, Statistic statistic, unsigned seed) {
  const Numbers joint = Scaled(table);
  const double df = TableDf(static_cast<double>(rows), static_cast<double>(table.size() / rows));
  const double critical = kelcommon::IsfChiSquare(alpha, df);
  Numbers counts(table.size());
  const auto share = Simulate(studies, seed, [&](auto& engine) {
    DrawCounts(engine, n, joint, counts);
    const TableStatistics found = OfTable(counts, rows, static_cast<double>(n));
    return (statistic == Statistic::Pearson ? found.pearson : found.likelihoodRatio) > critical;
  });
  const Answer effect = EffectOfTable(table, static_cast<double>(rows), statistic);
  const double power = *Power(df, alpha, *effect, static_cast<double>(n));
  EXPECT_LT(share.StandardErrorsFrom(power), kMostStandardErrors) << share.share << ", " << power;
}

TEST(SimulatedChiSquare, GoodnessOfFitOfThreeCategories) { ExpectFit({1, 1, 1}, {1.002, 0.998, 1}, 4000000, 11); }

TEST(SimulatedChiSquare, GoodnessOfFitOfUnequalCategories) {
  ExpectFit({9, 3, 3, 1}, {9.01, 2.99, 3.005, 0.995}, 2000000, 12);
}

TEST(SimulatedChiSquare, GoodnessOfFitWithoutEffect) { ExpectFit({4, 3, 2, 1}, {4, 3, 2, 1}, 1000000, 13); }

TEST(SimulatedChiSquare, IndependenceOfTwoByThree) {
  ExpectTable({0.1667, 0.1667, 0.1666, 0.1660, 0.1670, 0.1670}, 2, 4000000, Statistic::Pearson, 14);
}

TEST(SimulatedChiSquare, IndependenceByTheLikelihoodRatio) {
  ExpectTable({0.2505, 0.2495, 0.2495, 0.2505}, 2, 2000000, Statistic::LikelihoodRatio, 15);
}

TEST(SimulatedChiSquare, IndependenceWithoutEffect) {
  ExpectTable({1, 2, 3, 2, 4, 6, 3, 6, 9}, 3, 1000000, Statistic::Pearson, 16);
}

// Of two categories every count of a small sample can be gone through. The power of large samples is off by less than
// 0.035 there.
TEST(EnumeratedChiSquare, PowerOfLargeSamplesIsNearThatOfSmallOnes) {
  const double critical = kelcommon::IsfChiSquare(alpha, 1);
  for (const double p : {0.2, 0.28, 0.35, 0.42}) {
    for (const int n : {40, 60, 100, 200}) {
      double exact = 0;
      for (int k = 0; k <= n; ++k) {
        const double mass = std::exp(std::lgamma(n + 1.0) - std::lgamma(k + 1.0) - std::lgamma(n - k + 1.0) +
                                     k * std::log(p) + (n - k) * std::log1p(-p));
        if (4.0 * (k - n / 2.0) * (k - n / 2.0) / n > critical) exact += mass;
      }
      const double power = *Power(1, alpha, *EffectOfFit({1, 1}, {p, 1 - p}, Statistic::Pearson), n);
      EXPECT_NEAR(power, exact, 0.035) << p << ", " << n;
    }
  }
}

}  // namespace
}  // namespace kelpower::chi_square
