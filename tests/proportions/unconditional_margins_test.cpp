#include "proportions/unconditional_margins.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "proportions/score_region.h"

namespace kelpower::proportions {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

ContrastLimits Above(double limit) { return {Contrast::Difference, limit, infinity}; }
ContrastLimits Below(double limit) { return {Contrast::Difference, -infinity, limit}; }

double PowerOf(const ContrastLimits& limits, double alpha, double size1, double size2, const TwoProportions& of) {
  return UnconditionalMarginTest(limits, alpha, size1, size2).Power(of).ValueOr(NAN);
}

std::vector<double> Masses(int n, double p) {
  std::vector<double> masses;
  for (int x = 0; x <= n; ++x) {
    const double lnChoose = std::lgamma(n + 1.0) - std::lgamma(x + 1.0) - std::lgamma(n - x + 1.0);
    masses.push_back(std::exp(lnChoose) * std::pow(p, x) * std::pow(1 - p, n - x));
  }
  return masses;
}

/// The test by its definition: all tables in one order, and the proportions on a fine grid.
class EnumeratedMarginTest {
public:
  EnumeratedMarginTest(int n1, int n2, double difference) : n1_(n1), n2_(n2), difference_(difference) {
    for (int x1 = 0; x1 <= n1; ++x1) {
      for (int x2 = 0; x2 <= n2; ++x2) tables_.push_back({ScoreStatistic({n1, n2}, difference, x1, x2), x1, x2});
    }
    std::sort(tables_.begin(), tables_.end(), [](const Table& a, const Table& b) { return a.statistic > b.statistic; });
  }

  double Power(double alpha, double p1, double p2) const {
    const std::vector<double> masses1 = Masses(n1_, p1);
    const std::vector<double> masses2 = Masses(n2_, p2);
    const std::size_t kept = Kept(alpha);
    double power = 0;
    for (std::size_t i = 0; i < kept; ++i)
      power += masses1[static_cast<std::size_t>(tables_[i].x1)] * masses2[static_cast<std::size_t>(tables_[i].x2)];
    return power;
  }

private:
  struct Table {
    double statistic;
    int x1, x2;
  };

  /// How many tables have together a probability of at most `alpha` wherever the proportions lie.
  std::size_t Kept(double alpha) const {
    constexpr int points = 2000;
    std::vector<std::vector<double>> masses1, masses2;
    for (int i = 0; i <= points; ++i) {
      const double p1 = std::max(0.0, -difference_) + (1 - std::fabs(difference_)) * i / points;
      masses1.push_back(Masses(n1_, std::clamp(p1, 0.0, 1.0)));
      masses2.push_back(Masses(n2_, std::clamp(p1 + difference_, 0.0, 1.0)));
    }
    std::vector<double> level(masses1.size(), 0);
    std::size_t kept = 0;
    for (std::size_t i = 0; i < tables_.size(); ++i) {
      double largest = 0;
      for (std::size_t j = 0; j < level.size(); ++j) {
        level[j] +=
            masses1[j][static_cast<std::size_t>(tables_[i].x1)] * masses2[j][static_cast<std::size_t>(tables_[i].x2)];
        largest = std::max(largest, level[j]);
      }
      if (largest > alpha) break;
      const bool endsTie = i + 1 == tables_.size() || tables_[i].statistic - tables_[i + 1].statistic > 1e-9;
      if (endsTie) kept = i + 1;
    }
    return kept;
  }

  int n1_, n2_;
  double difference_;
  std::vector<Table> tables_;
};

TEST(UnconditionalMargins, AgreeWithPublishedPowers) {
  const UnconditionalMarginTest small(Above(0), 0.025, 25, 25);
  EXPECT_NEAR(*small.Power({0.25, 0.60}), 0.69461121704002, 1e-13);
  EXPECT_NEAR(*small.AttainedLevel(), 0.0231523911, 1e-10);
  const UnconditionalMarginTest larger(Above(0), 0.05, 34, 34);
  EXPECT_NEAR(*larger.Power({0.25, 0.60}), 0.9052923215996, 1e-12);
  EXPECT_NEAR(*larger.AttainedLevel(), 0.0487695475, 1e-10);
}

TEST(UnconditionalMargins, AreThoseOfFullEnumeration) {
  std::mt19937 engine(11);
  std::uniform_real_distribution<double> uniform(0.02, 0.98);
  const double margins[] = {0, -0.1, 0.15, -0.3, 0.5};
  for (int i = 0; i < 20; ++i) {
    const int n1 = 1 + static_cast<int>(24 * uniform(engine));
    const int n2 = 1 + static_cast<int>(24 * uniform(engine));
    const double margin = margins[i % 5];
    const double alpha = i % 2 == 0 ? 0.025 : 0.1;
    const TwoProportions of{uniform(engine), uniform(engine)};
    const EnumeratedMarginTest enumerated(n1, n2, margin);
    EXPECT_NEAR(PowerOf(Above(margin), alpha, n1, n2, of), enumerated.Power(alpha, of.p1, of.p2), 1e-12)
        << n1 << ' ' << n2 << ' ' << margin << ' ' << alpha;
  }
}

TEST(UnconditionalMargins, OrderTablesByBothCounts) {
  for (const double margin : {-0.4, -0.1, -0.02, 0.0, 0.07, 0.3}) {
    for (const GroupSizes& sizes : {GroupSizes{20, 20}, {7, 31}, {40, 12}, {1, 9}}) {
      for (std::int64_t x2 = 0; x2 < sizes.n2; ++x2) {
        for (std::int64_t x1 = 0; x1 < sizes.n1; ++x1) {
          const double here = ScoreStatistic(sizes, margin, x1, x2);
          EXPECT_GE(ScoreStatistic(sizes, margin, x1, x2 + 1), here - 1e-12) << margin << ' ' << x1 << ' ' << x2;
          EXPECT_LE(ScoreStatistic(sizes, margin, x1 + 1, x2), here + 1e-12) << margin << ' ' << x1 << ' ' << x2;
        }
      }
    }
  }
}

TEST(UnconditionalMargins, KeepTheLevel) {
  for (const double alpha : {0.001, 0.025, 0.05, 0.2, 0.6}) {
    for (const ContrastLimits& limits : {Above(-0.1), Above(0), Below(0.2), Below(-0.05)}) {
      const UnconditionalMarginTest test(limits, alpha, 37, 29);
      const double attained = *test.AttainedLevel();
      EXPECT_LE(attained, alpha);
      EXPECT_GT(attained, 0.5 * alpha);
      // No pair of proportions at the limit is rejected more often.
      const double limit = limits.HasLower() ? limits.lower : limits.upper;
      for (double p1 = 0.003; p1 < 1; p1 += 0.003) {
        if (p1 + limit <= 0 || p1 + limit >= 1) continue;
        EXPECT_LE(*test.Power({p1, p1 + limit}), attained + 1e-14) << p1;
      }
    }
  }
}

TEST(UnconditionalMargins, KeepTheLevelBetweenThePointsOfTheGrid) {
  for (const double margin : {-0.1, -0.03, 0.0, 0.15}) {
    const UnconditionalMarginTest test(Above(margin), 0.05, 31, 27);
    // A little less than what the region has leaves a table out.
    const double less = *test.AttainedLevel() * (1 - 1e-9);
    const UnconditionalMarginTest stricter(Above(margin), less, 31, 27);
    EXPECT_LE(*stricter.AttainedLevel(), less) << margin;
    EXPECT_LT(*stricter.Power({0.4, 0.6}), *test.Power({0.4, 0.6})) << margin;
  }
}

TEST(UnconditionalMargins, TreatTablesOfEqualStatisticAlike) {
  for (std::int64_t n = 5; n <= 40; ++n) {
    const GroupSizes sizes{n, n};
    const TableRegion region = ScoreRegion(sizes, 0, 0.05);
    for (std::int64_t x2 = 0; x2 <= n; ++x2) {
      for (std::int64_t x1 = 0; x1 <= n; ++x1) {
        // Successes in the one group are failures in the other.
        const bool isRejected = x1 <= region[static_cast<std::size_t>(x2)].most;
        EXPECT_EQ(isRejected, n - x2 <= region[static_cast<std::size_t>(n - x1)].most) << n << ' ' << x1 << ' ' << x2;
      }
    }
  }
}

TEST(UnconditionalMargins, MirrorWhenGroupsOrOutcomesAreSwapped) {
  const TwoProportions of{0.35, 0.3};
  const double power = PowerOf(Above(-0.2), 0.05, 40, 55, of);
  EXPECT_NEAR(PowerOf(Below(0.2), 0.05, 55, 40, {of.p2, of.p1}), power, 1e-13);
  EXPECT_NEAR(PowerOf(Below(0.2), 0.05, 40, 55, {1 - of.p1, 1 - of.p2}), power, 1e-13);
}

TEST(UnconditionalMargins, OfEquivalenceExcludeBothLimits) {
  for (const double size2 : {60.0, 90.0}) {
    const TwoProportions of{0.4, 0.42};
    const double lower = PowerOf(Above(-0.2), 0.05, 70, size2, of);
    const double upper = PowerOf(Below(0.25), 0.05, 70, size2, of);
    const ContrastLimits both{Contrast::Difference, -0.2, 0.25};
    const double power = PowerOf(both, 0.05, 70, size2, of);
    EXPECT_NEAR(power, lower + upper - 1, 1e-13);  // no table misses both limits
    EXPECT_GT(power, 0.2);
    const UnconditionalMarginTest test(both, 0.05, 70, size2);
    EXPECT_LE(*test.AttainedLevel(), 0.05);
  }
  EXPECT_EQ(PowerOf({Contrast::Difference, -0.1, 0.1}, 0.05, 10, 10, {0.5, 0.5}), 0);
}

TEST(UnconditionalMargins, AreNearTheScoreTestOfLargeSamples) {
  const IndependentMarginTest score({Above(-0.1), MarginMethod::FarringtonManning, 0.025}, 400, 400);
  EXPECT_NEAR(PowerOf(Above(-0.1), 0.025, 400, 400, {0.7, 0.7}), *score.Power({0.7, 0.7}), 0.01);
}

TEST(UnconditionalMargins, RefuseWhatThereIsNot) {
  EXPECT_TRUE(std::isnan(PowerOf({Contrast::RiskRatio, 0.8, infinity}, 0.05, 20, 20, {0.5, 0.5})));
  EXPECT_TRUE(std::isnan(PowerOf(Above(-0.1), 0.05, 20, UnconditionalMarginTest::largestGroup + 1, {0.5, 0.5})));
  EXPECT_TRUE(std::isnan(PowerOf({Contrast::Difference, 0.1, 0}, 0.05, 20, 20, {0.5, 0.5})));
}

TEST(UnconditionalMargins, AnswerForEveryNumber) {
  const double numbers[] = {NAN, -infinity,          -1, -0.9999999, -0.1,  -0.0,    1e-310, 1e-17,
                            0.5, 0.9999999999999999, 1,  2.7,        1e308, infinity};
  const auto isPower = [](double power) { return std::isnan(power) || (power >= 0 && power <= 1); };
  for (const double a : numbers) {
    for (const double b : numbers) {
      EXPECT_TRUE(isPower(PowerOf({Contrast::Difference, a, b}, 0.05, 8, 6, {0.5, 0.5}))) << a << ' ' << b;
      EXPECT_TRUE(isPower(PowerOf(Above(a), b, 8, 6, {0.5, 0.5}))) << a << ' ' << b;
      EXPECT_TRUE(isPower(PowerOf(Below(0.1), 0.05, a, b, {0.5, 0.5}))) << a << ' ' << b;
      EXPECT_TRUE(isPower(PowerOf(Below(0.1), 0.05, 5, 6, {a, b}))) << a << ' ' << b;
    }
  }
}

}  // namespace
}  // namespace kelpower::proportions
