#include "pictures/gnuplot.h"

#include <fmt/format.h>

#include <cmath>
#include <iterator>

namespace planner {
namespace {

// Of the levels of power, in their order.
constexpr const char* levelStyles[] = {"dt 3 lw 2", "lw 2", "dt 2 lw 2", "dt 4 lw 2"};

std::string DataValue(double value) { return std::isnan(value) ? "NaN" : fmt::format("{:.9g}", value); }

std::string CurveData(const Series& series) {
  std::string text = "$chart << END\n";
  for (std::size_t i = 0; i < series.x.size(); ++i) {
    text += fmt::format("{} {}\n", DataValue(series.x[i]), DataValue(series.power[i]));
  }
  return text + "END\n";
}

/// A block of lines for each x, separated by blank lines.
std::string SurfaceData(const Series& series) {
  std::string text = "$chart << END\n";
  for (std::size_t i = 0; i < series.x.size(); ++i) {
    for (std::size_t j = 0; j < series.y.size(); ++j) {
      text += fmt::format("{} {} {}\n", DataValue(series.x[i]), DataValue(series.y[j]),
                          DataValue(series.power[i * series.y.size() + j]));
    }
    text += '\n';
  }
  return text + "END\n";
}

std::string Place(const Figure& figure) {
  return fmt::format("{},{}", figure.markTextIsLeft ? "right offset -1.2" : "left offset 1.2",
                     figure.markTextIsBelow ? "-0.6" : "0.6");
}

constexpr const char* paperPoint = "point pt 7 ps 1.2 lc rgb '#b03a2e'";

std::string Mark(const Figure& figure, const GnuplotTerminal& terminal) {
  if (!figure.hasMark) return "";
  const std::string point = terminal.showsCharactersOnly ? "point pt 1" : fmt::format("boxed {}", paperPoint);
  return fmt::format("set label 1 \"{}\" at {:.9g},{:.9g} {} front {}\n", figure.markText, figure.markAt[0],
                     figure.markAt[1], Place(figure), point);
}

/// The mark alone. Its text stands below the title, because on the surface it would cover lines and their labels.
std::string MarkWithCaption(const Figure& figure) {
  if (!figure.hasMark) return "";
  return fmt::format("set label 1 \"\" at {:.9g},{:.9g} front {}\nset title \"{}\\nmarked: {}\" offset 0,0.5\n",
                     figure.markAt[0], figure.markAt[1], paperPoint, figure.title, figure.markText);
}

std::string Frame(const Figure& figure, const GnuplotTerminal& terminal) {
  std::string text = "set terminal " + terminal.name + "\nset encoding utf8\n";
  text += fmt::format("set title \"{}\"\nset xlabel \"{}\"\n", figure.title, figure.axisTitles[0]);
  if (!terminal.showsCharactersOnly) {
    text +=
        "set border 3 lc rgb '#555555'\nset tics nomirror\nset grid lc rgb '#dddddd' lt 1\n"
        "set style textbox opaque noborder fillcolor rgb '#ffffff' margins 0.4,0.3\n";
  }
  return text + "set key off\n";
}

std::string CurveCommands(const Figure& figure, const GnuplotTerminal& terminal) {
  std::string text = CurveData(*figure.series) + Frame(figure, terminal);
  text += "set ylabel \"power\"\nset yrange [0:1]\nset ytics 0.2\n" + Mark(figure, terminal);
  const char* style = terminal.showsCharactersOnly ? "lines" : "lines lw 2.5 lc rgb '#1f4e79'";
  return text + fmt::format("plot [{:.9g}:{:.9g}] $chart using 1:2 with {}\n", figure.series->x.front(),
                            figure.series->x.back(), style);
}

/// The lines of equal power as data, level by level, so that each can have its own style. Two blank lines separate lines:
/// gnuplot joins those of equal length to a net otherwise.
std::string LevelData(const Figure& figure) {
  std::string text;
  for (std::size_t i = 0; i < figure.levels.size(); ++i) {
    text += fmt::format("$level{} << END\n", i);
    if (figure.levels[i].lines.empty()) text += "NaN NaN\n";
    for (const Line& line : figure.levels[i].lines) {
      for (std::size_t k = 0; k < line.x.size(); ++k) text += fmt::format("{:.9g} {:.9g}\n", line.x[k], line.y[k]);
      text += "\n\n";
    }
    text += "END\n";
  }
  return text;
}

/// The level in the key, where there is such a line.
std::string TitleOf(const PowerLevel& level) {
  return level.lines.empty() ? "notitle" : fmt::format("title '{}'", level.label);
}

/// The lines of equal power alone, each level drawn with a character of its own.
std::string LinesInCharacters(const Figure& figure) {
  std::string plot;
  for (std::size_t i = 0; i < figure.levels.size(); ++i) {
    plot += fmt::format("{} $level{} using 1:2 with lines {}", i == 0 ? "" : ",", i, TitleOf(figure.levels[i]));
  }
  return LevelData(figure) + "set key outside\nunset ylabel\nplot" + plot + "\n";
}

/// Shades of power with lines of equal power, told apart in a key: labels on lines that run close would cover each
/// other.
std::string Shades(const Figure& figure) {
  std::string lines;
  for (std::size_t i = 0; i < figure.levels.size(); ++i) {
    lines += fmt::format(", $level{} using 1:2:(0) with lines {} lc rgb '#222222' {}", i,
                         levelStyles[i % std::size(levelStyles)], TitleOf(figure.levels[i]));
  }
  return LevelData(figure) +
         "set view map\nset pm3d map\nset cbrange [0:1]\nset cblabel \"power\"\n"
         "set border 15\nunset grid\nset palette defined (0 '#f7fbff', 0.5 '#c6dbef', 0.8 '#9ecae1', 1 '#5a9bcb')\n"
         "set lmargin at screen 0.1\nset rmargin at screen 0.84\n"
         "set tmargin at screen 0.87\nset bmargin at screen 0.18\n"
         "set key on at screen 0.47,0.05 center center horizontal maxrows 1 samplen 3\n"
         "splot $chart with pm3d notitle" +
         lines + "\n";
}

std::string SurfaceCommands(const Figure& figure, const GnuplotTerminal& terminal) {
  const Series& series = *figure.series;
  std::string text = SurfaceData(series) + Frame(figure, terminal);
  text += fmt::format("set ylabel \"{}\"\nset xrange [{:.9g}:{:.9g}]\nset yrange [{:.9g}:{:.9g}]\n",
                      figure.axisTitles[1], series.x.front(), series.x.back(), series.y.front(), series.y.back());
  if (!terminal.showsCharactersOnly) return text + MarkWithCaption(figure) + Shades(figure);
  // An upright title does not fit beside a drawing in characters.
  text += fmt::format("set title \"{}\\nupwards: {}\"\n", figure.title, figure.axisTitles[1]);
  return text + Mark(figure, terminal) + LinesInCharacters(figure);
}

}  // namespace

std::string GnuplotCommands(const Figure& figure, const GnuplotTerminal& terminal) {
  return figure.IsSurface() ? SurfaceCommands(figure, terminal) : CurveCommands(figure, terminal);
}

}  // namespace planner
