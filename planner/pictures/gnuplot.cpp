#include "pictures/gnuplot.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "format/format.h"
#include "pictures/captions.h"

namespace planner {
namespace {

// Of the levels of power, in their order.
constexpr const char* levelStyles[] = {"dt 3 lw 2", "lw 2", "dt 2 lw 2", "dt 4 lw 2"};

// Told apart by dashes as well as colours, which are those of Okabe and Ito for all kinds of colour vision.
constexpr const char* curveStyles[] = {"dt 1 lw 2.5 lc rgb '#0072b2'", "dt 2 lw 2.5 lc rgb '#d55e00'",
                                       "dt 4 lw 2.5 lc rgb '#009e73'", "dt 3 lw 3 lc rgb '#cc79a7'",
                                       "dt 5 lw 2.5 lc rgb '#333333'", "dt (12,4) lw 2.5 lc rgb '#e69f00'"};

constexpr const char* markStyle = "pt 7 ps 1.2 lc rgb '#b03a2e'";

std::string DataValue(double value) { return std::isnan(value) ? "NaN" : Formatted("{:.9g}", value); }

/// A text in double quotes. Lines stay apart, and what gnuplot would read as its own is put out of action.
std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (char letter : text) {
    if (letter == '\n') {
      quoted += "\\n";
      continue;
    }
    if (letter == '"' || letter == '\\' || letter == '`') quoted += '\\';
    if (static_cast<unsigned char>(letter) >= ' ') quoted += letter;
  }
  return quoted + '"';
}

std::string CurveData(const Figure& figure) {
  std::string text;
  for (std::size_t k = 0; k < figure.curves.size(); ++k) {
    const Series& series = *figure.curves[k].series;
    text += Formatted("$curve{} << END\n", k);
    for (std::size_t i = 0; i < series.x.size(); ++i) {
      text += Formatted("{} {}\n", DataValue(series.x[i]), DataValue(series.value[i]));
    }
    text += "END\n";
  }
  return text;
}

/// A block of lines for each x, separated by blank lines.
std::string SurfaceData(const Series& series) {
  std::string text = "$chart << END\n";
  for (std::size_t i = 0; i < series.x.size(); ++i) {
    for (std::size_t j = 0; j < series.y.size(); ++j) {
      text += Formatted("{} {} {}\n", DataValue(series.x[i]), DataValue(series.y[j]),
                        DataValue(series.value[i * series.y.size() + j]));
    }
    text += '\n';
  }
  return text + "END\n";
}

std::string MarkData(const Figure& figure) {
  std::string text = "$marks << END\n";
  for (const FigureMark& mark : figure.marks) text += Formatted("{:.9g} {:.9g}\n", mark.x, mark.y);
  return text + "END\n";
}

/// Words in lines of at most so many characters.
std::string Wrapped(const std::string& text, std::size_t characters) {
  std::vector<std::string> words;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find(' ', at), text.size());
    words.push_back(text.substr(at, end - at));
    at = end + 1;
  }
  std::string wrapped;
  for (const std::string& line : Lines(words, " ", characters)) wrapped += (wrapped.empty() ? "" : "\n") + line;
  return wrapped;
}

constexpr double lineOfSubtitle = 0.95;  // in lines of ordinary text

double LinesAbove(const Figure& figure) { return 2.8 + lineOfSubtitle * static_cast<double>(figure.subtitles.size()); }

/// The title above its smaller lines, each a label: gnuplot gives a title less room over a surface than over a curve.
std::string Titles(const Figure& figure, const GnuplotTerminal& terminal) {
  if (terminal.showsCharactersOnly) {
    std::string lines = figure.title;
    for (const std::string& line : figure.subtitles) lines += '\n' + line;
    return "set title " + Quoted(lines) + '\n';
  }
  const double below = static_cast<double>(figure.subtitles.size());
  std::string text = Formatted("set label 100 {} at graph 0.5,1 center offset 0,{:.2f} font ',{:.3g}' front\n",
                               Quoted(figure.title), 1.1 + lineOfSubtitle * below, 1.15 * terminal.fontSize);
  for (std::size_t i = 0; i < figure.subtitles.size(); ++i) {
    text += Formatted(
        "set label {} {} at graph 0.5,1 center offset 0,{:.2f} font ',{:.3g}' textcolor rgb '#444444' front\n", 101 + i,
        Quoted(figure.subtitles[i]), 0.6 + lineOfSubtitle * (below - 1 - static_cast<double>(i)),
        0.85 * terminal.fontSize);
  }
  return text + Formatted("set tmargin {:.2f}\n", LinesAbove(figure));
}

std::string Frame(const Figure& figure, const GnuplotTerminal& terminal) {
  std::string text = "set terminal " + terminal.name + "\nset encoding utf8\n" + Titles(figure, terminal);
  text += Formatted("set xlabel {}\n", Quoted(figure.axisTitles[0]));
  if (!terminal.showsCharactersOnly) {
    text += "set border 3 lc rgb '#555555'\nset tics nomirror\nset grid lc rgb '#dddddd' lt 1\n";
  }
  return text;
}

/// An upright title has as much room as the drawing is high.
std::string UprightTitle(const std::string& title, const GnuplotTerminal& terminal) {
  const std::size_t characters = std::max<std::size_t>(12, terminal.upright);
  return Formatted("set ylabel {}\n", Quoted(Wrapped(title, characters)));
}

std::string Key(const Figure& figure, const GnuplotTerminal& terminal) {
  const bool isNeeded = figure.curves.size() > 1 || !figure.marks.empty();
  if (!isNeeded) return "set key off\n";
  if (terminal.showsCharactersOnly) return "set key below\n";
  // Rows of the key below the title of the axis, which gnuplot would let it cover.
  const std::size_t entries = figure.curves.size() == 1 ? 1 : figure.curves.size() + 1;
  const std::size_t rows = (entries + 2) / 3;
  return Formatted(
      "set bmargin {}\nset key at screen 0.5,character {:.3g} center center horizontal maxrows {} samplen 4 Left reverse\n",
      4 + 1.1 * static_cast<double>(rows), 0.2 + 0.55 * static_cast<double>(rows), rows);
}

std::string CurvePlots(const Figure& figure, const GnuplotTerminal& terminal) {
  std::string plots;
  if (figure.isOfPower && !terminal.showsCharactersOnly) {
    plots += "0.8 with lines lw 1 dt 1 lc rgb '#999999' notitle, ";
  }
  for (std::size_t k = 0; k < figure.curves.size(); ++k) {
    const std::string& label = figure.curves[k].label;
    const std::string title = label.empty() ? "notitle" : "title " + Quoted(label);
    const std::string style =
        terminal.showsCharactersOnly ? std::string() : std::string(curveStyles[k % std::size(curveStyles)]) + " ";
    plots += Formatted("{}$curve{} using 1:2 with lines {}{}", k == 0 ? "" : ", ", k, style, title);
  }
  if (!figure.marks.empty()) {
    plots += Formatted(", $marks using 1:2 with points {} title {}", terminal.showsCharactersOnly ? "pt 1" : markStyle,
                       Quoted(figure.marks.front().text));
  }
  return plots;
}

std::string CurveCommands(const Figure& figure, const GnuplotTerminal& terminal) {
  std::string text = CurveData(figure) + MarkData(figure) + Frame(figure, terminal);
  if (terminal.showsCharactersOnly) {
    text += "set ylabel " + Quoted(Wrapped(figure.valueTitle, 12)) + '\n';
  } else {
    text += UprightTitle(figure.valueTitle, terminal);
  }
  text += figure.isOfPower ? "set yrange [0:1]\nset ytics 0.2\n" : "set yrange [0:*]\n";
  text += Key(figure, terminal);
  const Series& series = *figure.curves.front().series;
  return text + Formatted("plot [{:.9g}:{:.9g}] {}\n", series.x.front(), series.x.back(), CurvePlots(figure, terminal));
}

/// The lines of equal power as data, level by level, so that each can have its own style. Two blank lines separate lines:
/// gnuplot joins those of equal length to a net otherwise.
std::string LevelData(const Figure& figure) {
  std::string text;
  for (std::size_t i = 0; i < figure.levels.size(); ++i) {
    text += Formatted("$level{} << END\n", i);
    if (figure.levels[i].lines.empty()) text += "NaN NaN\n";
    for (const Line& line : figure.levels[i].lines) {
      for (std::size_t k = 0; k < line.x.size(); ++k) text += Formatted("{:.9g} {:.9g}\n", line.x[k], line.y[k]);
      text += "\n\n";
    }
    text += "END\n";
  }
  return text;
}

/// The level in the key, where there is such a line.
std::string TitleOf(const PowerLevel& level) {
  return level.lines.empty() ? "notitle" : Formatted("title {}", Quoted(level.label));
}

/// The lines of equal power alone, each level drawn with a character of its own.
std::string LinesInCharacters(const Figure& figure) {
  std::string plot;
  for (std::size_t i = 0; i < figure.levels.size(); ++i) {
    plot += Formatted("{} $level{} using 1:2 with lines {}", i == 0 ? "" : ",", i, TitleOf(figure.levels[i]));
  }
  if (!figure.marks.empty()) {
    plot += ", $marks using 1:2 with points pt 15 title \"design\"";
  }
  return LevelData(figure) + "set key below\nunset ylabel\nplot" + plot + "\n";
}

/// Margins of a surface, for which gnuplot does not keep room by itself.
std::string Margins(const Figure& figure, const GnuplotTerminal& terminal) {
  constexpr double linesBelow = 5.5;
  return Formatted(
      "set lmargin at screen 0.12\nset rmargin at screen 0.86\nset tmargin at screen {:.4f}\n"
      "set bmargin at screen {:.4f}\n"
      "set key at screen 0.5,screen {:.4f} center center horizontal maxrows 1 samplen 3 Left reverse\n",
      1 - LinesAbove(figure) / terminal.lines, linesBelow / terminal.lines, 1 / terminal.lines);
}

/// Shades of power with lines of equal power, told apart in a key: labels on lines that run close would cover each
/// other.
std::string Shades(const Figure& figure, const GnuplotTerminal& terminal) {
  std::string lines;
  for (std::size_t i = 0; i < figure.levels.size(); ++i) {
    lines += Formatted(", $level{} using 1:2:(0) with lines {} lc rgb '#222222' {}", i,
                       levelStyles[i % std::size(levelStyles)], TitleOf(figure.levels[i]));
  }
  if (!figure.marks.empty()) {
    lines += Formatted(", $marks using 1:2:(0) with points {} title \"design\"", markStyle);
  }
  return LevelData(figure) + Margins(figure, terminal) +
         "set view map\nset pm3d map corners2color mean\nset cbrange [0:1]\nset cblabel \"power\"\n"
         "set border 15\nunset grid\nset palette defined (0 '#f7fbff', 0.5 '#c6dbef', 0.8 '#9ecae1', 1 '#5a9bcb')\n"
         "splot $chart with pm3d notitle" +
         lines + "\n";
}

std::string SurfaceCommands(const Figure& figure, const GnuplotTerminal& terminal) {
  const Series& series = *figure.curves.front().series;
  std::string text = SurfaceData(series) + MarkData(figure) + Frame(figure, terminal);
  text += Formatted("set xrange [{:.9g}:{:.9g}]\nset yrange [{:.9g}:{:.9g}]\n", series.x.front(), series.x.back(),
                    series.y.front(), series.y.back());
  if (!terminal.showsCharactersOnly)
    return text + UprightTitle(figure.axisTitles[1], terminal) + Shades(figure, terminal);
  // An upright title does not fit beside a drawing in characters.
  Figure upwards = figure;
  upwards.subtitles.push_back("upwards: " + figure.axisTitles[1]);
  return text + Titles(upwards, terminal) + LinesInCharacters(figure);
}

}  // namespace

std::string GnuplotCommands(const Figure& figure, const GnuplotTerminal& terminal) {
  return figure.IsSurface() ? SurfaceCommands(figure, terminal) : CurveCommands(figure, terminal);
}

}  // namespace planner
