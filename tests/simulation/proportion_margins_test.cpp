#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "kelcommon/kel_dist_fun.h"
#include "proportions/independent_margins.h"
#include "proportions/one_sample_margins.h"
#include "proportions/unconditional_margins.h"
#include "support/observed_margins.h"
#include "support/share_of_studies.h"

namespace kelpower::proportions {
namespace {

using KelMath::KelDistFun;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr int studies = 1000000;

/// P(X <= x) of a binomial count.
double Below(double x, double n, double p) {
  long error = 0;
  return KelDistFun::CdfBin(x, n, p, error);
}

TEST(SimulatedMargins, OfOneProportionByTheExactTest) {
  const struct {
    ProportionLimits limits;
    double alpha, n, proportion;
  } designs[] = {
      {{0.75, infinity}, 0.025, 140, 0.85}, {{-infinity, 0.3}, 0.05, 37, 0.15}, {{0.4, 0.65}, 0.05, 150, 0.55}};
  unsigned seed = 1;
  for (const auto& [limits, alpha, n, proportion] : designs) {
    std::binomial_distribution<int> drawn(static_cast<int>(n), proportion);
    // By p-values, as an author would.
    const SimulatedShare share = Simulate(studies, seed++, [&, n = n, limits = limits, alpha = alpha](auto& engine) {
      const double x = drawn(engine);
      const bool isAbove = !limits.HasLower() || Below(n - x, n, 1 - limits.lower) <= alpha;
      const bool isBelow = !limits.HasUpper() || Below(x, n, limits.upper) <= alpha;
      return isAbove && isBelow;
    });
    const double power = *OneSampleMarginTest({limits, alpha, true}).Power(n, proportion);
    EXPECT_LT(share.StandardErrorsFrom(power), kMostStandardErrors) << n << ' ' << power << ' ' << share.share;
  }
}

TEST(SimulatedMargins, OfTwoProportionsByTheExactTest) {
  const struct {
    GroupSizes sizes;
    double margin, alpha, p1, p2;
  } designs[] = {{{20, 25}, -0.2, 0.05, 0.7, 0.75}, {{30, 18}, 0.0, 0.025, 0.2, 0.6}, {{15, 15}, 0.1, 0.1, 0.3, 0.7}};
  unsigned seed = 11;
  for (const auto& [sizes, margin, alpha, p1, p2] : designs) {
    // The decision for every table once, then a million studies that look it up.
    const std::vector<bool> rejects =
        RejectedByExactTest(static_cast<int>(sizes.n1), static_cast<int>(sizes.n2), margin, alpha);
    std::binomial_distribution<int> first(static_cast<int>(sizes.n1), p1);
    std::binomial_distribution<int> second(static_cast<int>(sizes.n2), p2);
    const std::int64_t columns = sizes.n2 + 1;
    const SimulatedShare share = Simulate(studies, seed++, [&, columns](auto& engine) {
      const std::int64_t x1 = first(engine);
      return bool(rejects[static_cast<std::size_t>(x1 * columns + second(engine))]);
    });
    const ContrastLimits limits{Contrast::Difference, margin, infinity};
    const UnconditionalMarginTest test(limits, alpha, double(sizes.n1), double(sizes.n2));
    const double power = *test.Power({p1, p2});
    EXPECT_LT(share.StandardErrorsFrom(power), kMostStandardErrors) << power << ' ' << share.share;
  }
}

ObservedTest TestOf(MarginMethod method, Contrast contrast, double limit) {
  const auto scale = contrast == Contrast::Difference ? MarginScale::Difference : MarginScale::Ratio;
  if (method == MarginMethod::Wald) return {MarginVariance::Observed, scale, limit};
  const bool isUnbiased = method == MarginMethod::MiettinenNurminen;
  return {isUnbiased ? MarginVariance::RestrictedUnbiased : MarginVariance::Restricted, scale, limit};
}

/// The probability that the test rejects, over all tables.
double Enumerated(const ObservedTest& test, double alpha, int n1, int n2, double p1, double p2) {
  const double critical = -KelDistFun::IdfStdNorm(alpha);
  long error = 0;
  double sum = 0;
  for (int x1 = 0; x1 <= n1; ++x1) {
    const double mass = KelDistFun::PdfBin(x1, n1, p1, error);
    for (int x2 = 0; x2 <= n2; ++x2) {
      if (test.Statistic(n1, n2, x1, x2) >= critical) sum += mass * KelDistFun::PdfBin(x2, n2, p2, error);
    }
  }
  return sum;
}

// How far the powers for large samples are from those of the tests themselves is what docs/margins-proportions.md says.
TEST(SimulatedMargins, OfLargeSamplesAreNearThoseOfTheTests) {
  const auto score = MarginMethod::FarringtonManning;
  const struct {
    MarginMethod method;
    Contrast contrast;
    int n;
    double within;
  } rows[] = {{score, Contrast::Difference, 50, 0.035},
              {score, Contrast::Difference, 100, 0.025},
              {score, Contrast::Difference, 200, 0.015},
              {score, Contrast::Difference, 400, 0.01},
              {MarginMethod::MiettinenNurminen, Contrast::Difference, 100, 0.025},
              {MarginMethod::Wald, Contrast::Difference, 100, 0.035},
              {score, Contrast::RiskRatio, 100, 0.025}};
  for (const auto& row : rows) {
    for (const double p : {0.3, 0.5, 0.7, 0.9}) {
      for (const int n2 : {row.n, 2 * row.n}) {
        const bool isRatio = row.contrast == Contrast::RiskRatio;
        const double reach = 2.8 * std::sqrt(p * (1 - p) * (1.0 / row.n + 1.0 / n2));
        const ObservedTest test = TestOf(row.method, row.contrast, isRatio ? 1 - reach / p : -reach);
        if ((isRatio && test.limit < 0.1) || p - reach < 0.02) continue;
        const double power =
            *IndependentMarginTest({{row.contrast, test.limit, infinity}, row.method, 0.025}, row.n, n2).Power({p, p});
        EXPECT_GT(power, 0.6);
        EXPECT_NEAR(power, Enumerated(test, 0.025, row.n, n2, p, p), row.within)
            << int(row.method) << ' ' << int(row.contrast) << ' ' << p << ' ' << row.n << ' ' << n2;
      }
    }
  }
}

TEST(SimulatedMargins, OfLargeSamplesAreWhatDrawnStudiesGive) {
  const auto method = MarginMethod::FarringtonManning;
  const ObservedTest test = TestOf(method, Contrast::Difference, -0.02);
  constexpr int n = 8000;
  constexpr double p = 0.6;
  const double critical = -KelDistFun::IdfStdNorm(0.025);
  std::binomial_distribution<int> drawn(n, p);
  constexpr int fewer = 200000;
  const SimulatedShare share = Simulate(fewer, 31, [&](auto& engine) {
    const double x1 = drawn(engine);
    return test.Statistic(n, n, x1, drawn(engine)) >= critical;
  });
  const ContrastLimits limits{Contrast::Difference, test.limit, infinity};
  const double power = *IndependentMarginTest({limits, method, 0.025}, n, n).Power({p, p});
  EXPECT_LT(share.StandardErrorsFrom(power), kMostStandardErrors) << power << ' ' << share.share;
}

}  // namespace
}  // namespace kelpower::proportions
