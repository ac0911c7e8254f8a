#include "chart.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <stdexcept>

#include "format/format.h"
#include "interrupts.h"
#include "solve/chart.h"
#include "usage_error.h"
#include "words/render.h"

namespace {

using planner::ChartData;
using planner::Formatted;

struct FileKind {
  const char* ending;
  std::string (*content)(const ChartData&, const PictureOptions&);
  bool isPicture;
};

const FileKind fileKinds[] = {
    {".svg", SvgPicture, true},
    {".png", PngPicture, true},
    {".pdf", PdfPicture, true},
    {".csv", [](const ChartData& chart, const PictureOptions&) { return planner::RenderCsv(chart); }, false},
    {".json", [](const ChartData& chart, const PictureOptions&) { return planner::RenderJson(chart); }, false},
};

const FileKind inCharacters{"", PictureInCharacters, false};

bool EndsWith(const std::string& text, const std::string& ending) {
  const auto isSame = [](char a, char b) { return std::tolower(static_cast<unsigned char>(a)) == b; };
  return text.size() > ending.size() &&
         std::equal(ending.begin(), ending.end(), text.end() - static_cast<std::ptrdiff_t>(ending.size()),
                    [&](char expected, char given) { return isSame(given, expected); });
}

const FileKind* KindOfName(const std::string& name) {
  for (const FileKind& kind : fileKinds) {
    if (EndsWith(name, kind.ending)) return &kind;
  }
  return nullptr;
}

const FileKind* KindOfFormat(Format format) {
  switch (format) {
    case Format::Text: return &inCharacters;
    case Format::Csv: return &fileKinds[3];
    case Format::Json: return &fileKinds[4];
    case Format::Markdown:
    case Format::Ndjson: break;
  }
  throw UsageError("--format of a chart must be text, json or csv.");
}

/// What is written: the format asked for, or without one what the file's name says.
const FileKind& KindOf(const Request& request) {
  const FileKind* named = request.output.empty() ? nullptr : KindOfName(request.output);
  if (!request.formatGiven && !request.output.empty()) {
    if (named) return *named;
    throw UsageError(Formatted("--output is \"{}\", but must end in .svg, .png, .pdf, .csv or .json.", request.output));
  }
  const FileKind* asked = KindOfFormat(request.format);
  if (named && named != asked) {
    throw UsageError(
        Formatted("--output is \"{}\", which is not of the --format asked for: leave out --format, or "
                  "name another file.",
                  request.output));
  }
  return *asked;
}

void CheckPicture(const PictureOptions& options, const FileKind& kind) {
  if ((options.width || options.height) && !kind.isPicture) {
    throw UsageError("--width and --height have a use only with an --output of .svg, .png or .pdf.");
  }
  if (options.dpi && kind.content != PngPicture) throw UsageError("--dpi has a use only with an --output of .png.");
}

void Write(const std::string& name, const std::string& content) {
  const InterruptsWait untilWritten;
  std::FILE* file = std::fopen(name.c_str(), "wb");
  if (!file) throw std::runtime_error(Formatted("\"{}\" cannot be written: {}.", name, std::strerror(errno)));
  const bool written = std::fwrite(content.data(), 1, content.size(), file) == content.size();
  const bool closed = std::fclose(file) == 0;
  if (!written || !closed) throw std::runtime_error(Formatted("\"{}\" cannot be written whole.", name));
}

}  // namespace

std::string ChartAnswer(const Request& request) {
  const FileKind& kind = KindOf(request);
  CheckPicture(request.picture, kind);
  const ChartData chart = planner::ComputeChart(*request.test, request.chart, request.values);
  const std::string content = kind.content(chart, request.picture);
  if (request.output.empty()) return content;
  Write(request.output, content);
  return "";
}
