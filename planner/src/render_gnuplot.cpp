#include <fmt/format.h>

#include <cmath>
#include <iterator>

#include "planner/draw.h"

namespace planner {
namespace {

struct Level {
  double power;
  const char* style;
};

constexpr Level levels[] = {{0.5, "dt 3 lw 2"}, {0.8, "lw 2"}, {0.9, "dt 2 lw 2"}, {0.95, "dt 4 lw 2"}};

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

/// "n = 60, power 0.63"
std::string MarkText(const Picture& picture) {
  std::string text;
  for (std::size_t i = 0; i < picture.chart->axes.size(); ++i) {
    text += fmt::format("{} = {:.4g}, ", picture.chart->axes[i].symbol, picture.mark->at[i]);
  }
  return text + fmt::format("power {:.2f}", picture.mark->power);
}

bool InRightHalf(const Picture& picture) {
  const Numbers& x = picture.series.x;
  return picture.mark->at[0] > (x.front() + x.back()) / 2;
}

bool Falls(const Series& series) { return series.power.front() > series.power.back(); }

/// Where the mark's text finds room: inwards, and on the side of the curve that is free there.
std::string Place(const Picture& picture) {
  const bool left = InRightHalf(picture);
  const bool below = left == Falls(picture.series);
  return fmt::format("{},{}", left ? "right offset -1.2" : "left offset 1.2", below ? "-0.6" : "0.6");
}

constexpr const char* paperPoint = "point pt 7 ps 1.2 lc rgb '#b03a2e'";

std::string Mark(const Picture& picture, const Canvas& canvas, double height) {
  if (!picture.mark) return "";
  const std::string point = canvas.characters ? "point pt 1" : fmt::format("boxed {}", paperPoint);
  return fmt::format("set label 1 \"{}\" at {:.9g},{:.9g} {} front {}\n", MarkText(picture), picture.mark->at[0],
                     height, Place(picture), point);
}

/// The mark alone, with its text below the title: on the surface it would cover lines and their labels.
std::string MarkWithCaption(const Picture& picture) {
  if (!picture.mark) return "";
  return fmt::format("set label 1 \"\" at {:.9g},{:.9g} front {}\nset title \"{}\\nmarked: {}\" offset 0,0.5\n",
                     picture.mark->at[0], picture.mark->at[1], paperPoint, picture.test->title, MarkText(picture));
}

std::string Frame(const Picture& picture, const Canvas& canvas) {
  std::string text = "set terminal " + canvas.terminal + "\nset encoding utf8\nset datafile missing 'NaN'\n";
  text += fmt::format("set title \"{}\"\nset xlabel \"{}\"\n", picture.test->title, picture.chart->axes[0].title);
  if (!canvas.characters) {
    text +=
        "set border 3 lc rgb '#555555'\nset tics nomirror\nset grid lc rgb '#dddddd' lt 1\n"
        "set style textbox opaque noborder fillcolor rgb '#ffffff' margins 0.4,0.3\n";
  }
  return text + "set key off\n";
}

std::string CurveCommands(const Picture& picture, const Canvas& canvas) {
  std::string text = CurveData(picture.series) + Frame(picture, canvas);
  text += "set ylabel \"power\"\nset yrange [0:1]\nset ytics 0.2\n";
  text += Mark(picture, canvas, picture.mark ? picture.mark->power : 0);
  const char* style = canvas.characters ? "lines" : "lines lw 2.5 lc rgb '#1f4e79'";
  return text + fmt::format("plot [{:.9g}:{:.9g}] $chart using 1:2 with {}\n", picture.series.x.front(),
                            picture.series.x.back(), style);
}

/// The lines of equal power as data, each level for itself so that it can have its own style.
std::string LevelData() {
  std::string text = "set contour base\nunset surface\n";
  for (std::size_t i = 0; i < std::size(levels); ++i) {
    text += fmt::format("set cntrparam levels discrete {1}\nset table $level{0}\nsplot $chart\nunset table\n", i,
                        levels[i].power);
  }
  return text + "unset contour\nset surface\n";
}

/// The lines of equal power alone, each level drawn with a character of its own.
std::string LinesInCharacters() {
  std::string plot;
  for (std::size_t i = 0; i < std::size(levels); ++i) {
    plot += fmt::format("{} $level{} using 1:2 with lines title 'power {}'", i == 0 ? "" : ",", i, levels[i].power);
  }
  return LevelData() + "set key outside\nunset ylabel\nplot" + plot + "\n";
}

/// Shades of power with lines of equal power, told apart in a key: labels on lines that run close would cover each
/// other.
std::string Shades() {
  std::string lines;
  for (std::size_t i = 0; i < std::size(levels); ++i) {
    lines += fmt::format(", $level{} using 1:2:(0) with lines {} lc rgb '#222222' title 'power {}'", i, levels[i].style,
                         levels[i].power);
  }
  return LevelData() +
         "set view map\nset pm3d map\nset cbrange [0:1]\nset cblabel \"power\"\n"
         "set border 15\nunset grid\nset palette defined (0 '#f7fbff', 0.5 '#c6dbef', 0.8 '#9ecae1', 1 '#5a9bcb')\n"
         "set lmargin at screen 0.1\nset rmargin at screen 0.84\n"
         "set tmargin at screen 0.87\nset bmargin at screen 0.18\n"
         "set key on at screen 0.47,0.05 center center horizontal maxrows 1 samplen 3\n"
         "splot $chart with pm3d notitle" +
         lines + "\n";
}

std::string SurfaceCommands(const Picture& picture, const Canvas& canvas) {
  const Series& series = picture.series;
  std::string text = SurfaceData(series) + Frame(picture, canvas);
  text +=
      fmt::format("set ylabel \"{}\"\nset xrange [{:.9g}:{:.9g}]\nset yrange [{:.9g}:{:.9g}]\n",
                  picture.chart->axes[1].title, series.x.front(), series.x.back(), series.y.front(), series.y.back());
  if (!canvas.characters) return text + MarkWithCaption(picture) + Shades();
  // An upright title does not fit beside a drawing in characters.
  text += fmt::format("set title \"{}\\nupwards: {}\"\n", picture.test->title, picture.chart->axes[1].title);
  text += Mark(picture, canvas, picture.mark ? picture.mark->at[1] : 0);
  return text + LinesInCharacters();
}

}  // namespace

std::string RenderGnuplot(const Picture& picture, const Canvas& canvas) {
  return picture.series.y.empty() ? CurveCommands(picture, canvas) : SurfaceCommands(picture, canvas);
}

}  // namespace planner
