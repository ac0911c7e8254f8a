#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <stdexcept>

#include "designs.h"
#include "designs_output.h"
#include "format/format.h"
#include "help.h"
#include "interrupts.h"
#include "interrupts_stop.h"
#include "ordered_work.h"
#include "pace.h"
#include "words/table_of_designs.h"

namespace {

planner::TableFormat FormatOf(const Request& request) {
  switch (request.format) {
    case Format::Text: return planner::TableFormat::Text;
    case Format::Markdown: return planner::TableFormat::Markdown;
    case Format::Csv: return planner::TableFormat::Csv;
    case Format::Json: return planner::TableFormat::Json;
    case Format::Ndjson: return planner::TableFormat::Ndjson;
  }
  return planner::TableFormat::Text;
}

}  // namespace

bool PrintTable(const Request& request, const planner::Highlights& highlights) {
  const planner::Designs designs(*request.test, request.alternatives);
  const planner::TableFormat format = FormatOf(request);
  const planner::TableOfDesigns table(designs, format, OptionOf);
  const bool isRead = format == planner::TableFormat::Text || format == planner::TableFormat::Markdown;
  std::string rows;
  DesignsOutput output("", format == planner::TableFormat::Json);
  if (!isRead) output.Write(table.Head());

  const InterruptsStop stop;
  ProgressBar bar(static_cast<double>(designs.Count()));
  Pace pace(1, 4096);
  std::size_t taken = 0;
  std::atomic<std::size_t> done = 0;
  OrderedWork work;
  work.next = [&]() -> std::optional<Block> {
    if (taken == designs.Count()) return std::nullopt;
    const std::size_t count = std::min(pace.Size(), designs.Count() - taken);
    const std::size_t first = taken;
    taken += count;
    return Block{.text = "", .first = first, .count = count};
  };
  work.makeWorker = [&] {
    const auto maker = std::make_shared<planner::TableOfDesigns::Rows>(table, stop.Request());
    return [&, maker](const Block& block) {
      BlockResult result;
      pace.Time([&] { result.isWhole = maker->Append(block.first, block.count, result.text); });
      return result;
    };
  };
  work.take = [&](const Block& block, const std::string& text) {
    if (isRead) {
      rows += text;
    } else {
      output.Write(text);
    }
    done += block.count;
  };
  work.look = [&] { bar.Show(static_cast<double>(done)); };
  const bool isWhole = work.Run(ThreadCount(request.jobs));
  if (isRead) output.Write(table.Read(rows, highlights));
  output.Close();
  return isWhole;
}

void SaveDesign(const Request& request) {
  if (request.save.empty()) return;
  const std::string text = planner::RenderDesigns(planner::Designs(*request.test, request.alternatives));
  const InterruptsWait untilWritten;
  DesignsOutput file(request.save, false);
  file.Write(text);
  file.Close();
}
