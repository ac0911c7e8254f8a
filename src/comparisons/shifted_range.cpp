#include "comparisons/shifted_range.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "comparisons/normal_means.h"

namespace kelpower::comparisons {

namespace {

// Beyond, the density of the least variable is below the last digit.
constexpr double reach = 9;
constexpr double negligible = 1e-18;

double NormalBelow(double z) { return std::erfc(-z * rootHalf) / 2; }

}  // namespace

// With x the least variable
//   P(range <= w) = sum_i int phi(x - m_i) prod_{j != i} (Phi(x + w - m_j) - Phi(x - m_j)) dx
// (Hartley 1942, "The range in random samples", Biometrika 32, where all means are equal). The least variable lies
// near the least mean, or below. The trapezoidal rule converges geometrically; its step is that at which the range of
// equal means has its last digit.
ShiftedRange::ShiftedRange(std::vector<double> means)
    : step_(1 / (1.1 + 1.15 * std::log(static_cast<double>(means.size())))),
      nodes_(1 + static_cast<int>(2 * reach / step_)) {
  std::sort(means.begin(), means.end());
  const double least = means.front();
  for (const double mean : means) {
    const double shifted = mean - least;
    if (!levels_.empty() && levels_.back().mean == shifted)
      ++levels_.back().count;
    else
      levels_.push_back({shifted, 1});
  }
  const std::size_t size = static_cast<std::size_t>(nodes_) * levels_.size();
  below_.reserve(size);
  density_.reserve(size);
  for (int i = 0; i < nodes_; ++i) {
    double noneBelow = 1;
    for (const Level& level : levels_) {
      const double z = -reach + i * step_ - level.mean;
      below_.push_back(NormalBelow(z));
      density_.push_back(level.count * std::exp(-z * z / 2));
      noneBelow *= WholePower(NormalBelow(-z), level.count);
    }
    if (noneBelow < negligible) nodes_ = i + 1;  // hardly ever is the least variable as far right
  }
}

double ShiftedRange::Below(double w) const {
  if (!(w > 0)) return std::isnan(w) ? w : 0;
  double sum = 0;
  const double* below = below_.data();
  const double* density = density_.data();
  for (int i = 0; i < nodes_; ++i, below += levels_.size(), density += levels_.size()) {
    // The product of all intervals, and the sum of the products in which one variable is at x in place of between x and
    // x + w.
    double product = 1;
    double atX = 0;
    for (std::size_t j = 0; j < levels_.size() && (product > 0 || atX > 0); ++j) {
      const double interval = std::max(NormalBelow(-reach + i * step_ + w - levels_[j].mean) - below[j], 0.0);
      const double others = WholePower(interval, levels_[j].count - 1);
      atX = atX * others * interval + product * others * density[j];
      product *= others * interval;
    }
    sum += atX;
  }
  return std::min(sum * step_ * densityAtZero, 1.0);
}

}  // namespace kelpower::comparisons
