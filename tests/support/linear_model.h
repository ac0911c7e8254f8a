#ifndef KELPOWER_TESTS_SUPPORT_LINEAR_MODEL_H
#define KELPOWER_TESTS_SUPPORT_LINEAR_MODEL_H

#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

namespace kelpower {

using Column = std::vector<double>;

/// Compares two linear models by least squares: the F test of the columns that the larger one has besides.
class LinearModel {
public:
  /// Adds a column, orthogonal to those before. One that lies within them adds nothing.
  void Add(Column column, bool isTested) {
    const double before = Dot(column, column);
    for (const auto& [direction, tested] : directions_) {
      const double along = Dot(direction, column);
      for (std::size_t i = 0; i < column.size(); ++i) column[i] -= along * direction[i];
    }
    const double left = Dot(column, column);
    if (left <= 1e-16 * before) return;
    for (double& entry : column) entry /= std::sqrt(left);
    directions_.emplace_back(std::move(column), isTested);
  }

  int Tested() const {
    int tested = 0;
    for (const auto& [direction, isTested] : directions_) tested += isTested ? 1 : 0;
    return tested;
  }

  int Columns() const { return static_cast<int>(directions_.size()); }

  /// What the tested columns add to the sum of squares that is explained.
  double TestedSquares(const Column& y) const {
    double squares = 0;
    for (const auto& [direction, isTested] : directions_) {
      if (isTested) squares += Dot(direction, y) * Dot(direction, y);
    }
    return squares;
  }

  /// The correlation of what the columns leave unexplained of two responses.
  double CorrelationOfRests(const Column& x, const Column& y) const {
    double xx = Dot(x, x);
    double yy = Dot(y, y);
    double xy = Dot(x, y);
    for (const auto& [direction, isTested] : directions_) {
      const double alongX = Dot(direction, x);
      const double alongY = Dot(direction, y);
      xx -= alongX * alongX;
      yy -= alongY * alongY;
      xy -= alongX * alongY;
    }
    return xy / std::sqrt(xx * yy);
  }

  double F(const Column& y) const {
    double testedSquares = 0;
    double error = Dot(y, y);
    for (const auto& [direction, isTested] : directions_) {
      const double along = Dot(direction, y);
      error -= along * along;
      if (isTested) testedSquares += along * along;
    }
    return testedSquares / Tested() / (error / (static_cast<double>(y.size()) - Columns()));
  }

private:
  static double Dot(const Column& a, const Column& b) {
    double sum = 0;
    for (std::size_t i = 0; i < a.size(); ++i) sum += a[i] * b[i];
    return sum;
  }

  std::vector<std::pair<Column, bool>> directions_;
};

/// The group of each observation, from the sizes of the groups.
inline std::vector<int> GroupOfEach(const std::vector<double>& sizes) {
  std::vector<int> groupOf;
  for (std::size_t group = 0; group < sizes.size(); ++group) {
    groupOf.insert(groupOf.end(), static_cast<std::size_t>(sizes[group]), static_cast<int>(group));
  }
  return groupOf;
}

/// A column for each group but the first.
inline std::vector<Column> Indicators(const std::vector<int>& groupOf, int groups) {
  std::vector<Column> indicators;
  for (int group = 1; group < groups; ++group) {
    Column indicator;
    for (int of : groupOf) indicator.push_back(of == group ? 1 : 0);
    indicators.push_back(indicator);
  }
  return indicators;
}

/// Codes a level as a deviation from the mean of all levels: `which` counts the columns from 0, one fewer than the levels.
inline double Deviation(int level, int which, int levels) { return level == which ? 1 : level == levels - 1 ? -1 : 0; }

}  // namespace kelpower

#endif
