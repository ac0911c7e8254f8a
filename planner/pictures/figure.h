#ifndef KELPOWER_PLANNER_PICTURES_FIGURE_H
#define KELPOWER_PLANNER_PICTURES_FIGURE_H

#include <string>
#include <vector>

#include "model/chart.h"
#include "pictures/level_lines.h"

namespace planner {

/// The lines of equal power on a surface.
struct PowerLevel {
  double power;
  std::string label;  // "power 0.8"
  std::vector<Line> lines;
};

struct FigureCurve {
  std::string label;  // empty for the only one
  const Series* series;
};

/// A place that is marked, with its text in the key: there it covers no curve.
struct FigureMark {
  double x;
  double y;
  std::string text;  // "design: n = 60, power 0.63"; empty for further ones of the same text
};

/// A chart with all that it takes to draw it, whatever draws it.
struct Figure {
  std::string title;
  std::vector<std::string> subtitles;  // lines
  std::vector<std::string> axisTitles;
  std::string valueTitle;
  bool isOfPower = true;
  std::vector<FigureCurve> curves;  // of the chart, which outlives the figure
  std::vector<PowerLevel> levels;
  std::string note;  // on the lines of equal power, where one is needed; the last of the subtitles
  std::vector<FigureMark> marks;

  bool IsSurface() const { return axisTitles.size() > 1; }
};

/// `title` replaces the name of the test, unless it is empty. Lines below it have at most so many characters.
Figure FigureOf(const ChartData& chart, const std::string& title = "", std::size_t characters = 90);

/// The figure in words, for those who cannot see it: what is drawn over what, from where to where, what is held fixed,
/// and where the design lies.
std::string DescriptionOf(const ChartData& chart);

}  // namespace planner

#endif
