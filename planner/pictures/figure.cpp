#include "pictures/figure.h"

#include <algorithm>
#include <cmath>

#include "format/format.h"
#include "model/test.h"
#include "pictures/captions.h"
#include "pictures/lasting.h"

namespace planner {
namespace {

constexpr double drawnLevels[] = {0.5, 0.8, 0.9, 0.95};

std::vector<FigureMark> MarksOf(const ChartData& chart) {
  std::vector<FigureMark> marks;
  for (const ChartCurve& curve : chart.curves) {
    if (!curve.mark) continue;
    const auto& [at, value] = *curve.mark;
    const std::string text = chart.curves.size() == 1 ? "design: " + MarkText(chart, curve)
                             : marks.empty()          ? "designs"
                                                      : "";
    marks.push_back({at[0], chart.IsSurface() ? at[1] : value, text});
  }
  return marks;
}

}  // namespace

Figure FigureOf(const ChartData& chart, const std::string& title, std::size_t characters) {
  Figure figure{.title = title.empty() ? chart.test->title : title,
                .subtitles = Lines(HeldFixed(chart), "; ", characters),
                .axisTitles = {},
                .valueTitle = ValueTitle(chart),
                .isOfPower = chart.quantity == Quantity::Power,
                .curves = {},
                .levels = {},
                .note = {},
                .marks = MarksOf(chart)};
  for (const Axis& axis : chart.axes) figure.axisTitles.push_back(axis.title);
  for (const ChartCurve& curve : chart.curves) {
    figure.curves.push_back({curve.alternative ? LabelOf(chart, curve) : "", &curve.series});
  }
  if (!chart.IsSurface()) return figure;
  // The place of a design on a surface takes a line of its own.
  for (const FigureMark& mark : figure.marks) figure.subtitles.push_back(mark.text);
  const Lasting lasting = LastingPower(chart);
  for (double power : drawnLevels) {
    figure.levels.push_back({power, Formatted("power {}", power), LevelLines(lasting.surface, power)});
  }
  if (lasting.isSmoothed) {
    figure.note = "the power jumps: beyond its line it stays at or above a level";
    figure.subtitles.push_back(figure.note);
  }
  return figure;
}

std::string DescriptionOf(const ChartData& chart) {
  const Series& series = chart.First();
  std::string text = NameOf(chart.quantity);
  text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
  text += Formatted(" over {} from {:.6g} to {:.6g}", chart.axes[0].title, series.x.front(), series.x.back());
  if (chart.IsSurface()) {
    text += Formatted(" and {} from {:.6g} to {:.6g}", chart.axes[1].title, series.y.front(), series.y.back());
  }
  for (const std::string& piece : HeldFixed(chart)) text += "; " + piece;
  text += ".";
  for (const ChartCurve& curve : chart.curves) {
    if (!curve.mark) continue;
    text += curve.alternative ? Formatted(" {}: {}.", LabelOf(chart, curve), MarkText(chart, curve))
                              : Formatted(" Design: {}.", MarkText(chart, curve));
  }
  return text;
}

}  // namespace planner
