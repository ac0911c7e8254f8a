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

/// A chart with all that it takes to draw it, whatever draws it.
struct Figure {
  std::string title;
  std::vector<std::string> axisTitles;
  const Series* series;  // of the chart, which outlives the figure
  std::vector<PowerLevel> levels;

  bool hasMark = false;
  Numbers markAt;        // the design's place: on a curve x and power, on a surface x and y
  std::string markText;  // "n = 60, power 0.63"
  // Where the mark's text finds room: inwards, and on the side of the curve that is free there.
  bool markTextIsLeft = false;
  bool markTextIsBelow = false;

  bool IsSurface() const { return axisTitles.size() > 1; }
};

Figure FigureOf(const ChartData& chart);

}  // namespace planner

#endif
