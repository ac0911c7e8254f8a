#include "planner/chart.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

#include "kelpower.h"

namespace planner {
namespace {

/// Missing is the most negative double, minus infinity in single precision, and invalid input gives -1.
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

Axis TotalSizeAxis() {
  constexpr double smallestTotal = 2;
  constexpr double largestTotal = 1e9;
  return {"total sample size (observations)", "n", {smallestTotal, largestTotal, true, true, true}, Total, nullptr};
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

}  // namespace planner
