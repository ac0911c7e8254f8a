#include "picture.h"

#include "format/format.h"
#include "gnuplot.h"
#include "pictures/gnuplot.h"
#include "pictures/svg.h"
#include "terminal.h"

namespace {

using planner::ChartData;
using planner::Formatted;

constexpr const char* font = "DejaVu Sans";
constexpr double usualWidth = 900;
constexpr double usualHeight = 640;
constexpr double usualDpi = 96;
constexpr double letterSize = 14;    // in pixels
constexpr double letterWidth = 0.6;  // of its size, on the generous side
constexpr double lineHeight = 1.2 * letterSize;
constexpr double pixelsOfPoint = 96.0 / 72;

double WidthOf(const PictureOptions& options) { return options.width.value_or(usualWidth); }
double HeightOf(const PictureOptions& options) { return options.height.value_or(usualHeight); }

/// How many letters of `size` pixels stand side by side on part of a length.
std::size_t Letters(double length, double part, double size) {
  return static_cast<std::size_t>(length * part / (size * letterWidth));
}

std::string Drawn(const ChartData& chart, const PictureOptions& options, const std::string& terminal, double fontSize) {
  constexpr double subtitleSize = 0.85 * letterSize;
  const planner::Figure figure = planner::FigureOf(chart, options.title, Letters(WidthOf(options), 0.85, subtitleSize));
  return RunGnuplot(planner::GnuplotCommands(figure, {.name = terminal,
                                                      .showsCharactersOnly = false,
                                                      .fontSize = fontSize,
                                                      .lines = HeightOf(options) / lineHeight,
                                                      .upright = Letters(HeightOf(options), 0.65, letterSize)}));
}

}  // namespace

std::string SvgPicture(const ChartData& chart, const PictureOptions& options) {
  const std::string terminal = Formatted("svg noenhanced background rgb 'white' size {:.0f},{:.0f} font '{},{}'",
                                         WidthOf(options), HeightOf(options), font, letterSize);
  const std::string title = options.title.empty() ? planner::FigureOf(chart).title : options.title;
  return planner::WithTitleAndDescription(Drawn(chart, options, terminal, letterSize), title,
                                          planner::DescriptionOf(chart));
}

std::string PngPicture(const ChartData& chart, const PictureOptions& options) {
  constexpr double points = letterSize / pixelsOfPoint;
  const double scale = options.dpi.value_or(usualDpi) / usualDpi;
  const std::string terminal = Formatted(
      "pngcairo noenhanced size {:.0f},{:.0f} font '{},{:.3g}' fontscale {:.4g} linewidth {:.4g} pointscale {:.4g}",
      scale * WidthOf(options), scale * HeightOf(options), font, points, scale, scale, scale);
  return Drawn(chart, options, terminal, points);
}

std::string PdfPicture(const ChartData& chart, const PictureOptions& options) {
  constexpr double points = letterSize / pixelsOfPoint;
  const std::string terminal = Formatted("pdfcairo noenhanced size {:.4g}in,{:.4g}in font '{},{:.3g}' fontscale 1",
                                         WidthOf(options) / usualDpi, HeightOf(options) / usualDpi, font, points);
  return Drawn(chart, options, terminal, points);
}

std::string PictureInCharacters(const ChartData& chart, const PictureOptions& options) {
  const TerminalSize size = SizeOf(stdout);
  const std::string terminal = Formatted("dumb {} {} noenhanced", size.columns, size.lines);
  const auto columns = static_cast<std::size_t>(size.columns);
  const planner::Figure figure = planner::FigureOf(chart, options.title, columns > 4 ? columns - 4 : columns);
  const std::string drawn =
      RunGnuplot(planner::GnuplotCommands(figure, {.name = terminal, .showsCharactersOnly = true}));
  // Gnuplot begins every page with a form feed.
  return drawn.substr(drawn.find_first_not_of('\f') == std::string::npos ? 0 : drawn.find_first_not_of('\f'));
}
