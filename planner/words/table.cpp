#include <algorithm>
#include <iterator>

#include "format/format.h"
#include "words/render.h"

namespace planner {
namespace {

/// The inputs without flags that are not set, and what is taken for granted.
std::vector<Entry> InputsForReading(const Report& report) {
  std::vector<Entry> entries;
  std::copy_if(report.inputs.begin(), report.inputs.end(), std::back_inserter(entries),
               [](const Entry& entry) { return !entry.isUnset; });
  entries.insert(entries.end(), report.assumptions.begin(), report.assumptions.end());
  return entries;
}

std::vector<Entry> ResultsForReading(const Report& report) {
  std::vector<Entry> entries;
  std::copy_if(report.results.begin(), report.results.end(), std::back_inserter(entries),
               [](const Entry& entry) { return !entry.isForPrograms; });
  return entries;
}

std::size_t WidestLabel(const Report& report) {
  std::size_t widest = 0;
  for (const Entry& entry : InputsForReading(report)) widest = std::max(widest, entry.label.size());
  for (const Entry& entry : ResultsForReading(report)) widest = std::max(widest, entry.label.size());
  return widest;
}

std::string MarkdownRow(const Entry& entry, const std::string& mark) {
  return Formatted("| {0}{1}{0} | {0}{2}{0} |\n", mark, entry.label, entry.shown);
}

}  // namespace

std::string RenderText(const Report& report, const Highlights& highlights) {
  std::string text = Formatted("{}{}{}\n\n", highlights.heading, report.test->title, highlights.end);
  const std::size_t width = WidestLabel(report);
  for (const Entry& entry : InputsForReading(report))
    text += Formatted("  {:<{}}  {}\n", entry.label, width, entry.shown);
  text += '\n';
  for (const Entry& entry : ResultsForReading(report)) {
    text += Formatted("  {}{:<{}}  {}{}\n", highlights.answer, entry.label, width, entry.shown, highlights.end);
  }
  text += Formatted("\n{}\n", report.sentence);
  if (!report.note.empty()) text += Formatted("Note: {}\n", report.note);
  if (report.explanation) text += RenderText(*report.explanation, highlights.heading, highlights.end);
  return text;
}

std::string RenderMarkdown(const Report& report) {
  std::string text = Formatted("**{}**\n\n| | |\n|---|---|\n", report.test->title);
  for (const Entry& entry : InputsForReading(report)) text += MarkdownRow(entry, "");
  for (const Entry& entry : ResultsForReading(report)) text += MarkdownRow(entry, "**");
  text += Formatted("\n{}\n", report.sentence);
  if (!report.note.empty()) text += Formatted("\n{}\n", report.note);
  if (report.explanation) text += RenderMarkdown(*report.explanation);
  return text;
}

}  // namespace planner
