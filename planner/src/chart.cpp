#include "planner/chart.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

#include "kelpower.h"

namespace planner {
namespace {

/// Missing is the most negative double, rounded to single precision minus infinity; other failures are -1 or -2.
double PowerOf(double value) {
  const bool present = std::isfinite(value) && value >= 0;
  return present ? value : std::numeric_limits<double>::quiet_NaN();
}

Numbers Powers(const double* values, std::size_t count) {
  Numbers powers(count);
  std::transform(values, values + count, powers.begin(), PowerOf);
  return powers;
}

std::size_t Count(std::int32_t count) { return count > 0 ? static_cast<std::size_t>(count) : 0; }

/// The positions of the values within the range.
std::vector<std::size_t> PositionsWithin(const Numbers& values, const Range& range) {
  constexpr double rounding = 1e-9;  // of a grid that is to meet the end of the range
  const bool all = range.from >= range.to;
  std::vector<std::size_t> positions;
  for (std::size_t i = 0; i < values.size(); ++i) {
    const bool within = values[i] >= range.from - rounding && values[i] <= range.to + rounding;
    if (all || within) positions.push_back(i);
  }
  return positions;
}

Numbers ValuesAt(const Numbers& values, const std::vector<std::size_t>& positions) {
  Numbers chosen;
  for (std::size_t position : positions) chosen.push_back(values[position]);
  return chosen;
}

double Total(const Inputs& in) {
  const Numbers& sizes = in.List("n");
  return std::accumulate(sizes.begin(), sizes.end(), 0.0);
}

}  // namespace

Series Curve(XYPlot record) {
  const std::size_t count = Count(record.count);
  Series series{Numbers(record.x, record.x + count), {}, Powers(record.y, count)};
  FreeMemXYPlot(&record);
  return series;
}

Series Surface(XYZPlot record) {
  const std::size_t xCount = Count(record.xCount);
  const std::size_t yCount = Count(record.yCount);
  Series series{Numbers(record.x, record.x + xCount), Numbers(record.y, record.y + yCount),
                Powers(record.z, xCount * yCount)};
  FreeMemXYZPlot(&record);
  return series;
}

Series Cut(const Series& series, const Ranges& ranges) {
  const std::vector<std::size_t> columns = PositionsWithin(series.x, ranges.x);
  if (series.y.empty()) return {ValuesAt(series.x, columns), {}, ValuesAt(series.power, columns)};
  const std::vector<std::size_t> rows = PositionsWithin(series.y, ranges.y);
  Series cut{ValuesAt(series.x, columns), ValuesAt(series.y, rows), {}};
  for (std::size_t i : columns) {
    for (std::size_t j : rows) cut.power.push_back(series.power[i * series.y.size() + j]);
  }
  return cut;
}

Axis TotalSizeAxis() {
  constexpr double smallestTotal = 2;
  constexpr double largestTotal = 1e9;
  const Limits limits{smallestTotal, largestTotal, true, true, true};
  return {"total sample size (observations)", "n", limits, Total, nullptr, nullptr, true};
}

Axis SizeAxis(std::string title, double smallest, double largest) {
  const auto design = [](const Inputs& in) { return in.Number("n"); };
  return {std::move(title), "n", {smallest, largest, true, true, true}, design, nullptr};
}

Axis ParameterAxis(const Parameter& parameter, std::string symbol, double (*design)(const Inputs&)) {
  const std::string unit = parameter.unit.empty() ? "" : " (" + parameter.unit + ")";
  return {parameter.label + unit, std::move(symbol), parameter.limits, design, nullptr};
}

Axis WithRange(Axis axis, Range (*usual)(const Inputs&)) {
  axis.usual = usual;
  return axis;
}

Range AroundTotalSize(const Inputs& in) {
  const double smallest = 2.0 * in.Groups();
  const double total = Total(in);
  return {std::min(std::max(smallest, std::floor(total / 4)), total), 2 * total};
}

Range UpToTwiceSize(const Inputs& in) { return {2, 2 * in.Number("n")}; }

}  // namespace planner
