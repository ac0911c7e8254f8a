#include "pictures/lasting.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace planner {
namespace {

constexpr double toothHeight = 0.002;

/// The entries of a surface along one axis.
class Row {
public:
  Row(Numbers& values, std::size_t first, std::size_t stride, std::size_t count)
      : values_(values), first_(first), stride_(stride), count_(count) {}

  double& operator[](std::size_t i) const { return values_[first_ + i * stride_]; }
  std::size_t Count() const { return count_; }

private:
  Numbers& values_;
  std::size_t first_;
  std::size_t stride_;
  std::size_t count_;
};

/// How often the values turn from rising to falling or back.
int Turns(const Row& row) {
  int turns = 0;
  int direction = 0;
  double extreme = NAN;
  for (std::size_t i = 0; i < row.Count(); ++i) {
    if (std::isnan(row[i])) continue;
    if (std::isnan(extreme)) extreme = row[i];
    const double change = row[i] - extreme;
    const int way = change > toothHeight ? 1 : change < -toothHeight ? -1 : 0;
    if (way != 0 && direction != 0 && way != direction) ++turns;
    if (way != 0) direction = way;
    const bool goesOn = direction >= 0 ? row[i] > extreme : row[i] < extreme;
    if (way != 0 || goesOn) extreme = row[i];
  }
  return turns;
}

/// Outwards from the lowest place to either side, the least that is still to come. More observations are always
/// outwards.
void TakeLeastToCome(const Row& row, bool isOfSizes) {
  std::size_t lowest = 0;
  for (std::size_t i = 0; !isOfSizes && i < row.Count(); ++i) {
    if (std::isnan(row[lowest]) || row[i] < row[lowest]) lowest = i;
  }
  for (std::size_t i = row.Count() - 1; i-- > lowest;) {
    if (!std::isnan(row[i]) && row[i + 1] < row[i]) row[i] = row[i + 1];
  }
  for (std::size_t i = 1; i <= lowest; ++i) {
    if (!std::isnan(row[i]) && row[i - 1] < row[i]) row[i] = row[i - 1];
  }
}

std::vector<Row> RowsAlong(Series& surface, bool isAlongX) {
  const std::size_t columns = surface.x.size();
  const std::size_t rows = surface.y.size();
  std::vector<Row> all;
  for (std::size_t i = 0; i < (isAlongX ? rows : columns); ++i) {
    if (isAlongX) {
      all.emplace_back(surface.value, i, rows, columns);
    } else {
      all.emplace_back(surface.value, i * rows, 1, rows);
    }
  }
  return all;
}

bool IsSaw(const std::vector<Row>& rows) {
  constexpr int fewTurns = 3;
  const auto isSaw = [](const Row& row) { return Turns(row) > fewTurns; };
  return 4 * std::count_if(rows.begin(), rows.end(), isSaw) > static_cast<std::ptrdiff_t>(rows.size());
}

}  // namespace

Lasting LastingPower(const ChartData& chart) {
  Lasting lasting{chart.First(), false};
  for (const bool isAlongX : {true, false}) {
    const std::vector<Row> rows = RowsAlong(lasting.surface, isAlongX);
    if (!IsSaw(rows)) continue;
    lasting.isSmoothed = true;
    for (const Row& row : rows) TakeLeastToCome(row, chart.axes[isAlongX ? 0 : 1].isOfSizes);
  }
  return lasting;
}

}  // namespace planner
