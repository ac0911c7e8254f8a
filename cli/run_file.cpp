#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <system_error>

#include "designs.h"
#include "designs_output.h"
#include "format/format.h"
#include "interrupts_stop.h"
#include "ordered_work.h"
#include "pace.h"
#include "rows_input.h"
#include "usage_error.h"
#include "words/problem.h"
#include "words/row_answers.h"

namespace {

using planner::DesignFormat;
using planner::FileOfDesigns;
using planner::Formatted;

DesignFormat AnswerFormat(const Request& request, DesignFormat input) {
  if (!request.formatGiven) return input;
  switch (*request.formatGiven) {
    case Format::Csv: return DesignFormat::Csv;
    case Format::Json: return DesignFormat::Json;
    case Format::Ndjson: return DesignFormat::Ndjson;
    case Format::Text:
    case Format::Markdown: break;
  }
  throw UsageError("--format of run must be csv, ndjson or json.");
}

void RejectSameFile(const Request& request) {
  if (request.output.empty() || request.input == "-") return;
  std::error_code error;
  if (std::filesystem::equivalent(request.input, request.output, error)) {
    throw UsageError(Formatted("--output is \"{}\", the file of the designs itself.", request.output));
  }
}

FileOfDesigns FileOf(RowsInput& input, const Request& request) {
  const DesignFormat answers = AnswerFormat(request, input.Format());
  std::vector<std::string> columns;
  if (input.Format() == DesignFormat::Csv) {
    columns = planner::ColumnsOf(input.TakeRow());
  } else if (answers == DesignFormat::Csv) {
    columns = planner::FieldsOfLines(input.Ahead());
  }
  return FileOfDesigns(input.Format(), answers, std::move(columns), request.test, input.Ahead());
}

bool Answer(RowsInput& input, const FileOfDesigns& file, const Request& request) {
  DesignsOutput output(request.output, file.AnswerFormat() == DesignFormat::Json);
  output.Write(file.Head());
  const InterruptsStop stop;
  ProgressBar bar(input.Size());
  Pace pace(256, 1 << 18);
  std::atomic<std::size_t> done = 0;
  OrderedWork work;
  work.next = [&]() -> std::optional<Block> {
    std::string rows = input.Take(pace.Size());
    if (rows.empty()) return std::nullopt;
    return Block{.text = std::move(rows), .first = 0, .count = 0};
  };
  work.makeWorker = [&] {
    const auto answers = std::make_shared<planner::RowAnswers>(file, stop.Request());
    return [&, answers](const Block& block) {
      BlockResult result;
      result.text.reserve(4 * block.text.size());
      pace.Time([&] { result.isWhole = answers->Answer(block.text, result.text); });
      return result;
    };
  };
  work.take = [&](const Block& block, const std::string& text) {
    output.Write(text);
    done += block.count;
  };
  work.look = [&] { bar.Show(static_cast<double>(done)); };
  const bool isWhole = work.Run(ThreadCount(request.jobs));
  output.Close();
  return isWhole;
}

}  // namespace

bool RunFile(const Request& request) {
  RejectSameFile(request);
  try {
    RowsInput input(request.input);
    const FileOfDesigns file = FileOf(input, request);
    return Answer(input, file, request);
  } catch (const planner::InputError& error) {
    // The problem is one of the file, whose columns are no options.
    throw UsageError(planner::Sentence(error.problem, [](std::string_view name) { return std::string(name); }));
  }
}
