#ifndef KELPOWER_TESTS_SUPPORT_DRAWN_RANKS_H
#define KELPOWER_TESTS_SUPPORT_DRAWN_RANKS_H

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

#include "ranks/parents.h"

// Samples of the parents of rank tests, and the exact distributions of the statistics without an effect.

namespace kelpower::ranks {

/// Draws values with standard deviation 1 around 0.
template <typename Engine>
double DrawFrom(Parent parent, Engine& engine, std::normal_distribution<double>& normal) {
  if (parent == Parent::Normal) return normal(engine);
  const double u = std::uniform_real_distribution<double>(0, 1)(engine);
  switch (parent) {
    case Parent::Logistic: return std::sqrt(3.0) / std::acos(-1.0) * std::log(u / (1 - u));
    case Parent::Laplace: return (u < 0.5 ? std::log(2 * u) : -std::log(2 - 2 * u)) / std::sqrt(2.0);
    case Parent::Uniform: return std::sqrt(12.0) * (u - 0.5);
    case Parent::Normal:
    case Parent::Minimum: break;
  }
  // The quantile of the parabola: y^3 - 3 y + 4 u - 2 = 0, of which this root lies in [-1, 1].
  return std::sqrt(5.0) * 2 * std::sin(std::asin(2 * u - 1) / 3);
}

template <typename Engine>
void Draw(Parent parent, double shift, std::vector<double>& values, Engine& engine) {
  std::normal_distribution<double> normal;
  for (double& value : values) value = shift + DrawFrom(parent, engine, normal);
}

/// Of how many pairs the first value is the larger one.
inline double CountOfLarger(const std::vector<double>& first, const std::vector<double>& second) {
  double larger = 0;
  for (double x : first) {
    int count = 0;
    for (double y : second) count += x > y ? 1 : 0;
    larger += count;
  }
  return larger;
}

/// The sum of the ranks of the positive values by their distance from 0. The values are sorted.
inline double SumOfPositiveRanks(std::vector<double>& values) {
  std::sort(values.begin(), values.end(), [](double a, double b) { return std::fabs(a) < std::fabs(b); });
  double sum = 0;
  for (std::size_t i = 0; i < values.size(); ++i) sum += values[i] > 0 ? static_cast<double>(i + 1) : 0;
  return sum;
}

/// Probabilities of the values 0, 1, ... of a statistic.
using Masses = std::vector<double>;

/// The largest value that a lower-tail test at `level` rejects.
inline double LargestRejected(const Masses& masses, double level) {
  double below = 0;
  double value = -1;
  for (double mass : masses) {
    below += mass;
    if (below > level) break;
    ++value;
  }
  return value;
}

/// Of the count of pairs in which the first of two equal groups is larger: a walk that adds the values of the first
/// group by size (Mann and Whitney 1947, Annals of Mathematical Statistics 18, 50-60).
inline Masses MassesOfPairs(std::size_t n1, std::size_t n2) {
  std::vector<std::vector<Masses>> of(n1 + 1, std::vector<Masses>(n2 + 1));
  for (std::size_t i = 0; i <= n1; ++i) {
    for (std::size_t j = 0; j <= n2; ++j) {
      Masses& masses = of[i][j];
      masses.assign(i * j + 1, 0);
      if (i == 0 || j == 0) {
        masses[0] = 1;
        continue;
      }
      const double share =
          static_cast<double>(i) / static_cast<double>(i + j);  // that the largest of all is of the first group
      for (std::size_t k = 0; k < of[i - 1][j].size(); ++k) masses[k + j] += share * of[i - 1][j][k];
      for (std::size_t k = 0; k < of[i][j - 1].size(); ++k) masses[k] += (1 - share) * of[i][j - 1][k];
    }
  }
  return of[n1][n2];
}

/// Of the sum of the ranks of the positive differences of `n`: each rank counts or not.
inline Masses MassesOfSignedRanks(std::size_t n) {
  Masses masses{1};
  for (std::size_t rank = 1; rank <= n; ++rank) {
    Masses next(masses.size() + rank, 0);
    for (std::size_t k = 0; k < masses.size(); ++k) {
      next[k] += masses[k] / 2;
      next[k + rank] += masses[k] / 2;
    }
    masses = std::move(next);
  }
  return masses;
}

}  // namespace kelpower::ranks

#endif
