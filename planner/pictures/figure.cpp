#include "pictures/figure.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "model/test.h"

namespace planner {
namespace {

constexpr double drawnLevels[] = {0.5, 0.8, 0.9, 0.95};

/// "n = 60, power 0.63"
std::string MarkText(const ChartData& chart) {
  std::string text;
  for (std::size_t i = 0; i < chart.chart->axes.size(); ++i) {
    text += fmt::format("{} = {:.4g}, ", chart.chart->axes[i].symbol, chart.mark->at[i]);
  }
  return text + fmt::format("power {:.2f}", chart.mark->power);
}

bool InRightHalf(const ChartData& chart) {
  const Numbers& x = chart.series.x;
  return chart.mark->at[0] > (x.front() + x.back()) / 2;
}

/// Between the first and the last point that have a power.
bool Falls(const Series& series) {
  const auto isPresent = [](double power) { return !std::isnan(power); };
  const auto first = std::find_if(series.power.begin(), series.power.end(), isPresent);
  const auto last = std::find_if(series.power.rbegin(), series.power.rend(), isPresent);
  return first != series.power.end() && *first > *last;
}

}  // namespace

Figure FigureOf(const ChartData& chart) {
  Figure figure{.title = chart.test->title,
                .axisTitles = {},
                .series = &chart.series,
                .levels = {},
                .markAt = {},
                .markText = {}};
  for (const Axis& axis : chart.chart->axes) figure.axisTitles.push_back(axis.title);
  if (figure.IsSurface()) {
    for (double power : drawnLevels) {
      figure.levels.push_back({power, fmt::format("power {}", power), LevelLines(chart.series, power)});
    }
  }
  if (!chart.mark) return figure;
  figure.hasMark = true;
  figure.markAt = chart.mark->at;
  if (!figure.IsSurface()) figure.markAt.push_back(chart.mark->power);
  figure.markText = MarkText(chart);
  figure.markTextIsLeft = InRightHalf(chart);
  figure.markTextIsBelow = figure.markTextIsLeft == Falls(chart.series);
  return figure;
}

}  // namespace planner
