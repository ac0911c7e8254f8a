#include <fmt/format.h>

#include <algorithm>

#include "planner/render.h"

namespace planner {
namespace {

std::size_t WidestLabel(const Report& report) {
  std::size_t widest = 0;
  for (const Entry& entry : report.inputs) widest = std::max(widest, entry.label.size());
  for (const Entry& entry : report.results) widest = std::max(widest, entry.label.size());
  return widest;
}

/// A value with all its digits, lists separated by spaces.
std::string CsvValue(const Value& value) {
  const auto* numbers = std::get_if<Numbers>(&value);
  if (!numbers) return Shown(value);
  std::string text;
  for (double number : *numbers) text += (text.empty() ? "" : " ") + Shortest(number);
  return text;
}

/// A field of a CSV line, quoted where its content asks for it.
std::string CsvField(const std::string& text) {
  if (text.find_first_of(",\"\n") == std::string::npos) return text;
  std::string quoted = "\"";
  for (char letter : text) {
    if (letter == '"') quoted += '"';
    quoted += letter;
  }
  return quoted + '"';
}

std::string MarkdownRow(const Entry& entry, const std::string& mark) {
  return fmt::format("| {0}{1}{0} | {0}{2}{0} |\n", mark, entry.label, entry.shown);
}

}  // namespace

std::string RenderText(const Report& report, const Paint& paint) {
  std::string text = fmt::format("{}{}{}\n\n", paint.heading, report.test->title, paint.end);
  const std::size_t width = WidestLabel(report);
  for (const Entry& entry : report.inputs) text += fmt::format("  {:<{}}  {}\n", entry.label, width, entry.shown);
  text += '\n';
  for (const Entry& entry : report.results) {
    text += fmt::format("  {}{:<{}}  {}{}\n", paint.answer, entry.label, width, entry.shown, paint.end);
  }
  text += fmt::format("\n{}\n", report.sentence);
  if (!report.note.empty()) text += fmt::format("Note: {}\n", report.note);
  return text;
}

std::string RenderMarkdown(const Report& report) {
  std::string text = fmt::format("**{}**\n\n| | |\n|---|---|\n", report.test->title);
  for (const Entry& entry : report.inputs) text += MarkdownRow(entry, "");
  for (const Entry& entry : report.results) text += MarkdownRow(entry, "**");
  text += fmt::format("\n{}\n", report.sentence);
  if (!report.note.empty()) text += fmt::format("\n{}\n", report.note);
  return text;
}

std::string RenderCsv(const Report& report) {
  std::string names = "test";
  std::string values = report.test->name;
  const auto add = [&](const std::string& name, const std::string& value) {
    names += ',' + CsvField(name);
    values += ',' + CsvField(value);
  };
  // An input and a result may share a name: the power that is asked for and the one that is reached.
  const auto isResult = [&](const std::string& name) {
    return std::any_of(report.results.begin(), report.results.end(),
                       [&](const Entry& result) { return result.name == name; });
  };
  for (const Entry& entry : report.inputs) {
    add((isResult(entry.name) ? "target-" : "") + entry.name, CsvValue(entry.value));
  }
  for (const Entry& entry : report.results) add(entry.name, CsvValue(entry.value));
  return names + '\n' + values + '\n';
}

}  // namespace planner
