#include "anova/cell_table.h"

#include <cmath>
#include <cstddef>
#include <utility>

namespace kelpower::anova {

CellTable::CellTable(std::vector<int> levels, std::vector<double> values)
    : levels_(std::move(levels)), values_(std::move(values)) {}

// A row is written where one before or itself was read, so that one table serves both.
template <typename Change>
void CellTable::Along(std::size_t factor, int count, Change change) {
  std::size_t outer = 1;
  std::size_t inner = 1;
  for (std::size_t i = 0; i < levels_.size(); ++i) {
    if (i < factor) outer *= static_cast<std::size_t>(levels_[i]);
    if (i > factor) inner *= static_cast<std::size_t>(levels_[i]);
  }
  const auto old = static_cast<std::size_t>(levels_[factor]);
  const auto kept = static_cast<std::size_t>(count);
  std::vector<double> row(old);
  for (std::size_t o = 0; o < outer; ++o) {
    for (std::size_t i = 0; i < inner; ++i) {
      for (std::size_t level = 0; level < old; ++level) row[level] = values_[(o * old + level) * inner + i];
      change(row);
      // The levels of the same o at larger i are read later: what is written lies before them or at this i.
      for (std::size_t level = 0; level < kept; ++level) values_[(o * kept + level) * inner + i] = row[level];
    }
  }
  levels_[factor] = count;
  values_.resize(outer * kept * inner);
}

void CellTable::SumOver(std::size_t factor, double weight) {
  Along(factor, 1, [weight](std::vector<double>& row) {
    double sum = 0;
    for (const double value : row) sum += value;
    row[0] = sum * weight;
  });
}

void CellTable::Difference(std::size_t factor) {
  Along(factor, 1, [](std::vector<double>& row) { row[0] -= row[1]; });
}

void CellTable::Centre(std::size_t factor) {
  Along(factor, levels_[factor], [](std::vector<double>& row) {
    double sum = 0;
    for (const double value : row) sum += value;
    const double mean = sum / static_cast<double>(row.size());
    for (double& value : row) value -= mean;
  });
}

void CellTable::Contrast(std::size_t factor) {
  Along(factor, levels_[factor] - 1, [](std::vector<double>& row) {
    double sum = 0;
    for (std::size_t r = 1; r < row.size(); ++r) {
      sum += row[r - 1];
      const auto count = static_cast<double>(r);
      row[r - 1] = (sum - count * row[r]) / std::sqrt(count * (count + 1));
    }
  });
}

}  // namespace kelpower::anova
