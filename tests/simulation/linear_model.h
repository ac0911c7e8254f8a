#ifndef KELPOWER_TESTS_SIMULATION_LINEAR_MODEL_H
#define KELPOWER_TESTS_SIMULATION_LINEAR_MODEL_H

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

/// Codes a level as a deviation from the mean of all levels: `which` counts the columns from 0, one fewer than the levels.
inline double Deviation(int level, int which, int levels) { return level == which ? 1 : level == levels - 1 ? -1 : 0; }

}  // namespace kelpower

#endif
