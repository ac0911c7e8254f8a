#ifndef KELPOWER_TESTS_SUPPORT_DRAWN_COUNTS_H
#define KELPOWER_TESTS_SUPPORT_DRAWN_COUNTS_H

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

// Frequencies of categories, drawn and tested.

namespace kelpower {

using Numbers = std::vector<double>;

/// Numbers on any scale as shares of their sum.
inline Numbers Scaled(Numbers values) {
  double sum = 0;
  for (const double value : values) sum += value;
  for (double& value : values) value /= sum;
  return values;
}

/// Draws subjects one by one, each of which falls into one of several categories.
class Categories {
public:
  explicit Categories(const Numbers& proportions) {
    constexpr double states = 18446744073709551616.0;  // of an engine of 64 bits
    double below = 0;
    for (std::size_t i = 0; i + 1 < proportions.size(); ++i) {
      below += proportions[i];
      ends_.push_back(below < 1 ? static_cast<std::uint64_t>(below * states) : ~std::uint64_t{0});
    }
  }

  /// Fills `counts[from]` and those after it, one for each category.
  template <typename Engine>
  void Draw(Engine& engine, long n, Numbers& counts, std::size_t from = 0) const {
    static_assert(Engine::min() == 0 && Engine::max() == ~std::uint64_t{0}, "an engine of 64 bits");
    std::vector<long> above(ends_.size());  // how many are in later categories; counted without a branch
    for (long subject = 0; subject < n; ++subject) {
      const std::uint64_t drawn = engine();
      for (std::size_t i = 0; i < above.size(); ++i) above[i] += drawn >= ends_[i] ? 1 : 0;
    }
    for (std::size_t i = 0; i < above.size(); ++i) {
      counts[from + i] = static_cast<double>(n - above[i]);
      n = above[i];
    }
    counts[from + above.size()] = static_cast<double>(n);
  }

private:
  std::vector<std::uint64_t> ends_;
};

/// Draws the counts of many subjects at once. For counts expected to be about ten use `Categories`: the binomial
/// distribution of GNU's standard library is off there, by 1 % of a probability.
template <typename Engine>
void DrawCounts(Engine& engine, long n, const Numbers& proportions, Numbers& counts) {
  double rest = 1;
  for (std::size_t i = 0; i + 1 < proportions.size(); ++i) {
    const double share = std::fmin(proportions[i] / rest, 1.0);
    const long count = std::binomial_distribution<long>(n, share)(engine);
    counts[i] = static_cast<double>(count);
    n -= count;
    rest -= proportions[i];
  }
  counts.back() = static_cast<double>(n);
}

struct TableStatistics {
  double pearson = 0;
  double likelihoodRatio = 0;

  /// Adds a cell. One that nothing is expected in has nothing.
  void Add(double count, double expected) {
    if (expected <= 0) return;
    pearson += (count - expected) * (count - expected) / expected;
    if (count > 0) likelihoodRatio += 2 * count * std::log(count / expected);
  }
};

inline TableStatistics OfFit(const Numbers& counts, const Numbers& null, double n) {
  TableStatistics sum;
  for (std::size_t i = 0; i < counts.size(); ++i) sum.Add(counts[i], n * null[i]);
  return sum;
}

inline TableStatistics OfTable(const Numbers& counts, std::size_t rows, double n) {
  const std::size_t columns = counts.size() / rows;
  Numbers rowSums(rows);
  Numbers columnSums(columns);
  for (std::size_t k = 0; k < counts.size(); ++k) {
    rowSums[k / columns] += counts[k];
    columnSums[k % columns] += counts[k];
  }
  TableStatistics sum;
  for (std::size_t k = 0; k < counts.size(); ++k)
    sum.Add(counts[k], rowSums[k / columns] * columnSums[k % columns] / n);
  return sum;
}

/// The proportions of a second group, by odds of what lies above each cut that are `oddsRatio` times those of the first.
inline Numbers Moved(const Numbers& first, double oddsRatio) {
  Numbers second;
  double below = 0;
  double moved = 0;
  for (double probability : first) {
    below += probability;
    const double odds = (1 - below) / below * oddsRatio;
    second.push_back(1 / (1 + odds) - moved);
    moved = 1 / (1 + odds);
  }
  return second;
}

/// The standardized sum of the ranks of the first of two groups, with the variance that ties leave and without a
/// correction for continuity. Of two groups by category, first the one, then the other.
inline double RankZ(const Numbers& counts) {
  const std::size_t categories = counts.size() / 2;
  double n1 = 0;
  double n2 = 0;
  double ranks = 0;
  double cubes = 0;
  for (std::size_t i = 0; i < categories; ++i) {
    const double tied = counts[i] + counts[categories + i];
    ranks += counts[i] * (n1 + n2 + (tied + 1) / 2);
    cubes += tied * tied * tied - tied;
    n1 += counts[i];
    n2 += counts[categories + i];
  }
  const double total = n1 + n2;
  const double variance = n1 * n2 / 12 * (total + 1 - cubes / (total * (total - 1)));
  return variance > 0 ? (ranks - n1 * (total + 1) / 2) / std::sqrt(variance) : 0;
}

}  // namespace kelpower

#endif
