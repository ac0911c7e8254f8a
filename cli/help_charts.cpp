#include "help_charts.h"

#include <algorithm>
#include <vector>

#include "format/format.h"
#include "solve/axes.h"

using namespace planner;

namespace {

/// Where the usual range of an axis goes, in few words.
std::string UsualRange(const Axis& axis) {
  if (axis.isOfSizes) return "from the smallest";
  if (axis.usual) return Formatted("{} to {}", axis.usual->from, axis.usual->to);
  return "";
}

std::string AxisLine(const Axis& axis, std::size_t width) {
  const std::string usual = UsualRange(axis);
  return Formatted("  {:<{}}  {}{}\n", axis.name, width, axis.title, usual.empty() ? "" : ", " + usual);
}

/// The design of the first example, which a chart can draw.
std::string DesignOfExample(const Test& test) { return test.examples.front().arguments; }

}  // namespace

std::string ChartSection(const Test& test, const Highlights& highlights) {
  const std::vector<Axis> axes = AllAxes(test);
  std::size_t width = 0;
  for (const Axis& axis : axes) width = std::max(width, axis.name.size());
  std::string text = Formatted("\n{}Charts{}\n", highlights.heading, highlights.end);
  text +=
      "  --chart AXIS draws the power (with --interval the half-width) over one of these axes, and --chart AXIS-AXIS\n"
      "  the power over two of them:\n";
  for (const Axis& axis : axes) text += AxisLine(axis, width);
  return text +
         Formatted(
             "  The usual range goes from a power near alpha to one of 0.99, with the design inside.\n"
             "  Give the design by its sizes, or by --power to draw it at the sizes found. One option may have\n"
             "  several values, by repeating it or as in --alpha 0.01,0.05, for a curve each.\n"
             "  --y n                      the sizes that reach --power or --half-width, over any other axis\n"
             "  --from NUMBER --to NUMBER  ends of the axis; of two axes, two numbers each: --from 12,2\n"
             "  --step NUMBER              step between points, as a share of the range; whole numbers go by ones\n"
             "  --output FILE              .svg, .png, .pdf, .csv or .json; without it drawn in characters\n"
             "  --title TEXT  --width PIXELS  --height PIXELS  --dpi NUMBER (of .png)\n"
             "  kelpower {} --chart {}\n",
             DesignOfExample(test), axes.front().name);
}
