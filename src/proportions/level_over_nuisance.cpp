#include "proportions/level_over_nuisance.h"

#include <algorithm>
#include <cmath>

#include "proportions/independent_masses.h"

namespace kelpower::proportions {

namespace {

constexpr double halfPi = 1.57079632679489661923;

// A peak below this share of the highest one on the grid is not the highest between its points.
constexpr double shareOfPeaks = 0.9;

constexpr double negligibleMass = 1e-22;

GroupSize SizeOf(std::int64_t n) { return GroupSize::Of(static_cast<double>(n)); }

/// The largest value of `f` between two ends, in which it rises and then falls: golden sections.
template <typename Function>
double LargestBetween(double low, double high, Function f) {
  constexpr double golden = 0.6180339887498949;
  constexpr int sections = 36;  // the value is then exact to rounding, as its error is a square
  double left = high - golden * (high - low);
  double right = low + golden * (high - low);
  double atLeft = f(left);
  double atRight = f(right);
  for (int i = 0; i < sections; ++i) {
    if (atLeft < atRight) {
      low = left;
      left = right;
      atLeft = atRight;
      right = low + golden * (high - low);
      atRight = f(right);
    } else {
      high = right;
      right = left;
      atRight = atLeft;
      left = high - golden * (high - low);
      atLeft = f(left);
    }
  }
  return std::max(atLeft, atRight);
}

}  // namespace

LevelOverNuisance::LevelOverNuisance(const GroupSizes& sizes, double difference)
    : sizes_(sizes), lowest_(std::max(0.0, -difference)), width_(1 - std::fabs(difference)), difference_(difference) {
  const double largest = static_cast<double>(std::max(sizes.n1, sizes.n2));
  const double steps = std::ceil(halfPi * 6 * std::sqrt(largest)) + 16;
  step_ = halfPi / steps;
  for (double i = 0; i <= steps; ++i) grid_.push_back(PointAt(i * step_));
}

LevelOverNuisance::Point LevelOverNuisance::PointAt(double angle) const {
  const double sine = std::sin(angle);
  const double p1 = std::clamp(lowest_ + width_ * sine * sine, 0.0, 1.0);
  const double p2 = std::clamp(p1 + difference_, 0.0, 1.0);
  Point point;
  const BinomialMasses masses2 = BinomialMasses::Of(SizeOf(sizes_.n2), p2);
  std::int64_t first = masses2.first;
  std::int64_t last = masses2.Last();
  while (first < last && masses2.At(first) < negligibleMass) ++first;
  while (last > first && masses2.At(last) < negligibleMass) --last;
  point.first2 = static_cast<std::size_t>(first);
  for (std::int64_t x = first; x <= last; ++x) point.masses2.push_back(masses2.At(x));

  const BinomialTails tails1(BinomialMasses::Of(SizeOf(sizes_.n1), p1));
  for (std::int64_t x = 0; x <= sizes_.n1 + 1; ++x) point.below1.push_back(tails1.Below(x));
  return point;
}

namespace {

template <typename Point>
double ProbabilityAt(const TableRegion& region, const Point& point) {
  double sum = 0;
  for (std::size_t i = 0; i < point.masses2.size(); ++i) {
    const RowRange& row = region[point.first2 + i];
    if (row.least > row.most) continue;
    sum += point.masses2[i] *
           (point.below1[static_cast<std::size_t>(row.most + 1)] - point.below1[static_cast<std::size_t>(row.least)]);
  }
  return sum;
}

}  // namespace

std::vector<double> LevelOverNuisance::OnGrid(const TableRegion& region) const {
  std::vector<double> values;
  values.reserve(grid_.size());
  for (const Point& point : grid_) values.push_back(ProbabilityAt(region, point));
  return values;
}

double LevelOverNuisance::LargestBeside(const TableRegion& region, std::size_t peak) const {
  const double low = static_cast<double>(peak == 0 ? 0 : peak - 1) * step_;
  const double high = static_cast<double>(std::min(peak + 1, grid_.size() - 1)) * step_;
  return LargestBetween(low, high, [&](double angle) { return ProbabilityAt(region, PointAt(angle)); });
}

double LevelOverNuisance::Largest(const TableRegion& region) const {
  const std::vector<double> values = OnGrid(region);
  double largest = *std::max_element(values.begin(), values.end());
  const double least = shareOfPeaks * largest;
  for (std::size_t i = 0; i < values.size(); ++i) {
    const bool isPeak =
        (i == 0 || values[i] >= values[i - 1]) && (i + 1 == values.size() || values[i] >= values[i + 1]);
    if (isPeak && values[i] > 0 && values[i] >= least) largest = std::max(largest, LargestBeside(region, i));
  }
  return largest;
}

bool LevelOverNuisance::Exceeds(const TableRegion& region, double level) const {
  double largest = 0;
  for (const Point& point : grid_) {
    largest = std::max(largest, ProbabilityAt(region, point));
    if (largest > level) return true;
  }
  return largest >= shareOfPeaks * level && Largest(region) > level;
}

}  // namespace kelpower::proportions
