#ifndef KELPOWER_TESTS_SUPPORT_OBSERVED_MARGINS_H
#define KELPOWER_TESTS_SUPPORT_OBSERVED_MARGINS_H

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

// Tests of two observed proportions against a margin, as their authors write them.

namespace kelpower {

enum class MarginScale { Difference, Ratio, OddsRatio };

struct ObservedProportions {
  double p1;
  double p2;
};

/// The second proportion at which the limit holds.
inline double AtLimit(MarginScale scale, double limit, double p1) {
  switch (scale) {
    case MarginScale::Difference: return p1 + limit;
    case MarginScale::Ratio: return p1 * limit;
    case MarginScale::OddsRatio: break;
  }
  return limit * p1 / (1 - p1 + limit * p1);
}

/// The derivative of that second proportion.
inline double SlopeAtLimit(MarginScale scale, double limit, double p1) {
  switch (scale) {
    case MarginScale::Difference: return 1;
    case MarginScale::Ratio: return limit;
    case MarginScale::OddsRatio: break;
  }
  const double below = 1 - p1 + limit * p1;
  return limit / (below * below);
}

/// The most likely proportions that have the limit, by bisection of the derivative of the likelihood.
inline ObservedProportions MostLikely(MarginScale scale, double limit, double n1, double n2, double x1, double x2) {
  double low = scale == MarginScale::Difference ? std::fmax(0, -limit) : 0;
  double high = 1;
  if (scale == MarginScale::Difference) high = std::fmin(1, 1 - limit);
  if (scale == MarginScale::Ratio) high = std::fmin(1, 1 / limit);
  const auto score = [](double x, double n, double p) { return (x > 0 ? x / p : 0) - (x < n ? (n - x) / (1 - p) : 0); };
  for (int step = 0; step < 60; ++step) {
    const double p1 = (low + high) / 2;
    const double slope = score(x1, n1, p1) + SlopeAtLimit(scale, limit, p1) * score(x2, n2, AtLimit(scale, limit, p1));
    (slope > 0 ? low : high) = p1;
  }
  const double p1 = (low + high) / 2;
  return {p1, std::fmin(1, std::fmax(0, AtLimit(scale, limit, p1)))};
}

enum class MarginVariance { Restricted, RestrictedUnbiased, Observed };

/// A test of one limit: the score test of Farrington and Manning (1990), that of Miettinen and Nurminen (1985), or Wald's,
/// of ratios by their logarithm.
struct ObservedTest {
  MarginVariance variance;
  MarginScale scale;
  double limit;

  /// How far the second proportion is above the limit, in standard errors.
  double Statistic(double n1, double n2, double x1, double x2) const {
    if (variance == MarginVariance::Observed) return WaldStatistic(n1, n2, x1, x2);
    const ObservedProportions at = MostLikely(scale, limit, n1, n2, x1, x2);
    const double v1 = at.p1 * (1 - at.p1) / n1;
    const double v2 = at.p2 * (1 - at.p2) / n2;
    // The score of the second group by the limit, and its variance.
    const double slope = SlopeAtLimit(scale, limit, at.p1);
    double distance = x2 / n2 - at.p2 - slope * (x1 / n1 - at.p1);
    if (scale == MarginScale::Difference) distance = x2 / n2 - x1 / n1 - limit;
    if (scale == MarginScale::Ratio) distance = x2 / n2 - limit * x1 / n1;
    const double unbiased = variance == MarginVariance::RestrictedUnbiased ? (n1 + n2) / (n1 + n2 - 1) : 1;
    return Standardized(distance, (slope * slope * v1 + v2) * unbiased);
  }

private:
  double WaldStatistic(double n1, double n2, double x1, double x2) const {
    const double p1 = x1 / n1;
    const double p2 = x2 / n2;
    const double v1 = p1 * (1 - p1) / n1;
    const double v2 = p2 * (1 - p2) / n2;
    if (scale == MarginScale::Difference) return Standardized(p2 - p1 - limit, v1 + v2);
    if (x1 == 0 || x2 == 0) return x2 > x1 ? 1e9 : -1e9;
    if (scale == MarginScale::Ratio) return Standardized(std::log(p2 / p1 / limit), v1 / (p1 * p1) + v2 / (p2 * p2));
    if (x1 == n1 || x2 == n2) return x2 / n2 > x1 / n1 ? 1e9 : -1e9;
    const double logOdds = std::log(p2 / (1 - p2)) - std::log(p1 / (1 - p1));
    return Standardized(logOdds - std::log(limit), 1 / (n1 * n1 * v1) + 1 / (n2 * n2 * v2));
  }

  static double Standardized(double distance, double squared) {
    if (distance == 0) return 0;
    return squared > 0 ? distance / std::sqrt(squared) : std::copysign(1e9, distance);
  }
};

/// Which of the tables of two groups the exact unconditional test of a difference above a limit rejects, row by row:
/// those whose p-value, the largest probability of a statistic at least as large whichever two proportions have the
/// difference, is at most the level (Chan 1998, Statistics in Medicine 17, 1403-1413).
inline std::vector<bool> RejectedByExactTest(int n1, int n2, double limit, double alpha) {
  const ObservedTest test{MarginVariance::Restricted, MarginScale::Difference, limit};
  const std::size_t columns = static_cast<std::size_t>(n2) + 1;
  const std::size_t tables = (static_cast<std::size_t>(n1) + 1) * columns;
  std::vector<double> statistics(tables);
  std::vector<std::size_t> order(tables);
  for (std::size_t k = 0; k < tables; ++k) {
    order[k] = k;
    statistics[k] = test.Statistic(n1, n2, static_cast<double>(k / columns), static_cast<double>(k % columns));
  }
  std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return statistics[a] > statistics[b]; });

  const auto massesOf = [](int n, double p) {
    std::vector<double> masses;
    for (int x = 0; x <= n; ++x) {
      const double ways = std::lgamma(n + 1.0) - std::lgamma(x + 1.0) - std::lgamma(n - x + 1.0);
      masses.push_back(std::exp(ways + (x > 0 ? x * std::log(p) : 0) + (x < n ? (n - x) * std::log1p(-p) : 0)));
    }
    return masses;
  };
  std::vector<double> largest(tables);
  constexpr int points = 2000;
  for (int i = 0; i <= points; ++i) {
    const double p1 = std::fmin(1, std::fmax(0, -limit) + (1 - std::fabs(limit)) * i / points);
    const std::vector<double> first = massesOf(n1, p1);
    const std::vector<double> second = massesOf(n2, std::fmin(1, std::fmax(0, p1 + limit)));
    double sum = 0;
    for (std::size_t k = 0; k < tables; ++k) {
      sum += first[order[k] / columns] * second[order[k] % columns];
      largest[k] = std::fmax(largest[k], sum);
    }
  }
  constexpr double tie = 1e-9;
  std::vector<bool> rejected(tables);
  for (std::size_t k = 0; k < tables; ++k) {
    std::size_t last = k;
    while (last + 1 < tables && statistics[order[last + 1]] >= statistics[order[k]] - tie) ++last;
    rejected[order[k]] = largest[last] <= alpha;
  }
  return rejected;
}

}  // namespace kelpower

#endif
