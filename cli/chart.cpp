#include "chart.h"

#include <fmt/format.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <stdexcept>

#include "gnuplot.h"
#include "interrupts.h"
#include "planner/draw.h"
#include "planner/error.h"
#include "terminal.h"

namespace {

using planner::Picture;

struct FileKind {
  std::string ending;
  std::string (*content)(const Picture&);
};

constexpr const char* font = "DejaVu Sans";

std::string Drawn(const Picture& picture, const std::string& terminal) {
  return RunGnuplot(planner::RenderGnuplot(picture, {terminal, false}));
}

const FileKind fileKinds[] = {
    {".svg",
     [](const Picture& picture) {
       return Drawn(picture, fmt::format("svg noenhanced size 800,560 font '{},14'", font));
     }},
    {".png",
     [](const Picture& picture) {
       return Drawn(picture, fmt::format("pngcairo noenhanced size 1000,700 font '{},15'", font));
     }},
    {".pdf",
     [](const Picture& picture) {
       return Drawn(picture, fmt::format("pdfcairo noenhanced size 18cm,12.6cm font '{},11'", font));
     }},
    {".csv", planner::RenderCsv},
    {".json", planner::RenderJson},
};

bool EndsWith(const std::string& text, const std::string& ending) {
  return text.size() > ending.size() && text.compare(text.size() - ending.size(), ending.size(), ending) == 0;
}

const FileKind& KindOf(const std::string& name) {
  for (const FileKind& kind : fileKinds) {
    if (EndsWith(name, kind.ending)) return kind;
  }
  throw planner::InputError(fmt::format("--output is \"{}\", but must end in .svg, .png, .pdf, .csv or .json.", name));
}

void Write(const std::string& name, const std::string& content) {
  const InterruptsWait untilWritten;
  std::FILE* file = std::fopen(name.c_str(), "wb");
  if (!file) throw std::runtime_error(fmt::format("\"{}\" cannot be written: {}.", name, std::strerror(errno)));
  const bool written = std::fwrite(content.data(), 1, content.size(), file) == content.size();
  const bool closed = std::fclose(file) == 0;
  if (!written || !closed) throw std::runtime_error(fmt::format("\"{}\" cannot be written whole.", name));
}

std::string InCharacters(const Picture& picture) {
  const TerminalSize size = SizeOf(stdout);
  return RunGnuplot(
      planner::RenderGnuplot(picture, {fmt::format("dumb {} {} noenhanced", size.columns, size.lines), true}));
}

std::string Printed(const Picture& picture, Format format) {
  if (format == Format::Csv) return planner::RenderCsv(picture);
  if (format == Format::Json) return planner::RenderJson(picture);
  return InCharacters(picture);
}

}  // namespace

std::string ChartAnswer(const Request& request) {
  if (request.format == Format::Markdown) {
    throw planner::InputError("--format of a chart must be text, json or csv.");
  }
  const FileKind* kind = request.output.empty() ? nullptr : &KindOf(request.output);
  const Picture picture = planner::Draw(*request.test, request.chart, request.given);
  if (!kind) return Printed(picture, request.format);
  Write(request.output, kind->content(picture));
  return "";
}
