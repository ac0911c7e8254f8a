#ifndef KELPOWER_ANOVA_CELL_TABLE_H
#define KELPOWER_ANOVA_CELL_TABLE_H

#include <vector>

namespace kelpower::anova {

/// Numbers over the cells of crossed factors, row by row, with operations along one factor.
class CellTable {
public:
  CellTable(std::vector<int> levels, std::vector<double> values);

  const std::vector<int>& Levels() const { return levels_; }
  const std::vector<double>& Values() const { return values_; }

  /// Takes the sum over the levels of a factor, which then has one level, times `weight`.
  void SumOver(std::size_t factor, double weight);

  /// Takes the second of two levels from the first.
  void Difference(std::size_t factor);

  /// Takes from each level the mean over the levels.
  void Centre(std::size_t factor);

  /// Puts orthonormal contrasts in the place of the levels, one fewer: those of Helmert, which compare the sum of the
  /// first r levels with r times the next one.
  void Contrast(std::size_t factor);

private:
  /// Replaces the levels of the factor, given as pointers into a strided row, by what `change` leaves in `count` of them.
  template <typename Change>
  void Along(std::size_t factor, int count, Change change);

  std::vector<int> levels_;
  std::vector<double> values_;
};

}  // namespace kelpower::anova

#endif
