#include "words/text_table.h"

#include <algorithm>
#include <functional>
#include <string_view>

#include "format/format.h"

namespace planner {
namespace {

using Cells = std::vector<std::string_view>;

/// The first part of the text up to the separator, which is taken off with it.
std::string_view Take(std::string_view& text, char separator) {
  const std::size_t end = std::min(text.find(separator), text.size());
  const std::string_view part = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return part;
}

void ForEachRow(const TextTable& table, const std::function<void(const Cells&)>& visit) {
  Cells cells;
  for (std::string_view rest = table.rows; !rest.empty();) {
    std::string_view row = Take(rest, '\n');
    cells.clear();
    for (std::size_t i = 0; i < table.heads.size(); ++i) cells.push_back(Take(row, TextTable::betweenCells));
    visit(cells);
  }
}

bool HasNotes(const TextTable& table) {
  bool any = false;
  ForEachRow(table, [&](const Cells& cells) { any = any || !cells.back().empty(); });
  return any;
}

/// How many columns are shown.
std::size_t ColumnCount(const TextTable& table) { return table.heads.size() - (HasNotes(table) ? 0 : 1); }

std::vector<std::size_t> Widths(const TextTable& table) {
  std::vector<std::size_t> widths;
  for (const std::string& head : table.heads) widths.push_back(head.size());
  ForEachRow(table, [&](const Cells& cells) {
    for (std::size_t i = 0; i < cells.size(); ++i) widths[i] = std::max(widths[i], cells[i].size());
  });
  return widths;
}

}  // namespace

std::string RenderText(const TextTable& table, const Highlights& highlights) {
  const std::vector<std::size_t> widths = Widths(table);
  const std::size_t notes = table.heads.size() - 1;
  const std::size_t columns = ColumnCount(table);
  std::string text = Formatted("{}{}{}\n\n", highlights.heading, table.title, highlights.end);
  const auto addRow = [&](const Cells& cells, bool isHead) {
    for (std::size_t i = 0; i < columns; ++i) {
      const bool isAnswer = i >= table.inputs && !isHead;
      text += "  ";
      if (isAnswer) text += highlights.answer;
      text += i == notes ? std::string(cells[i]) : Formatted("{:>{}}", cells[i], widths[i]);
      if (isAnswer) text += highlights.end;
    }
    while (text.ends_with(' ')) text.pop_back();
    text += '\n';
  };
  addRow(Cells(table.heads.begin(), table.heads.end()), true);
  ForEachRow(table, [&](const Cells& cells) { addRow(cells, false); });
  if (!table.below.empty()) text += Formatted("\n{}\n", table.below);
  return text;
}

std::string RenderMarkdown(const TextTable& table) {
  const std::size_t columns = ColumnCount(table);
  std::string text = Formatted("**{}**\n\n|", table.title);
  for (std::size_t i = 0; i < columns; ++i) text += Formatted(" {} |", table.heads[i]);
  text += "\n|";
  for (std::size_t i = 0; i < columns; ++i) text += i + 1 == table.heads.size() ? "---|" : "---:|";
  text += '\n';
  ForEachRow(table, [&](const Cells& cells) {
    text += '|';
    for (std::size_t i = 0; i < columns; ++i) text += Formatted(" {} |", cells[i]);
    text += '\n';
  });
  if (!table.below.empty()) text += Formatted("\n{}\n", table.below);
  return text;
}

}  // namespace planner
