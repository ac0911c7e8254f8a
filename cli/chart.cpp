#include "chart.h"

#include <fmt/format.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <stdexcept>

#include "gnuplot.h"
#include "interrupts.h"
#include "pictures/gnuplot.h"
#include "solve/chart.h"
#include "terminal.h"
#include "usage_error.h"
#include "words/render.h"

namespace {

using planner::ChartData;

struct FileKind {
  std::string ending;
  std::string (*content)(const ChartData&);
};

constexpr const char* font = "DejaVu Sans";

std::string Drawn(const ChartData& chart, const std::string& terminal) {
  return RunGnuplot(planner::GnuplotCommands(planner::FigureOf(chart), {terminal, false}));
}

const FileKind fileKinds[] = {
    {".svg",
     [](const ChartData& chart) {
       return Drawn(chart, fmt::format("svg noenhanced size 800,560 font '{},14'", font));
     }},
    {".png",
     [](const ChartData& chart) {
       return Drawn(chart, fmt::format("pngcairo noenhanced size 1000,700 font '{},15'", font));
     }},
    {".pdf",
     [](const ChartData& chart) {
       return Drawn(chart, fmt::format("pdfcairo noenhanced size 18cm,12.6cm font '{},11'", font));
     }},
    {".csv", [](const ChartData& chart) { return planner::RenderCsv(chart); }},
    {".json", [](const ChartData& chart) { return planner::RenderJson(chart); }},
};

bool EndsWith(const std::string& text, const std::string& ending) {
  return text.size() > ending.size() && text.compare(text.size() - ending.size(), ending.size(), ending) == 0;
}

const FileKind& KindOf(const std::string& name) {
  for (const FileKind& kind : fileKinds) {
    if (EndsWith(name, kind.ending)) return kind;
  }
  throw UsageError(fmt::format("--output is \"{}\", but must end in .svg, .png, .pdf, .csv or .json.", name));
}

void Write(const std::string& name, const std::string& content) {
  const InterruptsWait untilWritten;
  std::FILE* file = std::fopen(name.c_str(), "wb");
  if (!file) throw std::runtime_error(fmt::format("\"{}\" cannot be written: {}.", name, std::strerror(errno)));
  const bool written = std::fwrite(content.data(), 1, content.size(), file) == content.size();
  const bool closed = std::fclose(file) == 0;
  if (!written || !closed) throw std::runtime_error(fmt::format("\"{}\" cannot be written whole.", name));
}

std::string InCharacters(const ChartData& chart) {
  const TerminalSize size = SizeOf(stdout);
  const std::string terminal = fmt::format("dumb {} {} noenhanced", size.columns, size.lines);
  return RunGnuplot(planner::GnuplotCommands(planner::FigureOf(chart), {terminal, true}));
}

std::string Printed(const ChartData& chart, Format format) {
  if (format == Format::Csv) return planner::RenderCsv(chart);
  if (format == Format::Json) return planner::RenderJson(chart);
  return InCharacters(chart);
}

}  // namespace

std::string ChartAnswer(const Request& request) {
  if (request.format == Format::Markdown) {
    throw UsageError("--format of a chart must be text, json or csv.");
  }
  const FileKind* kind = request.output.empty() ? nullptr : &KindOf(request.output);
  const ChartData chart = planner::ComputeChart(*request.test, request.chart, request.values);
  if (!kind) return Printed(chart, request.format);
  Write(request.output, kind->content(chart));
  return "";
}
