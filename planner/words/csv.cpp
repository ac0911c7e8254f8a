#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "words/numbers.h"
#include "words/render.h"

namespace planner {
namespace {

/// A value with all its digits, lists separated by spaces.
std::string CsvValue(const Value& value) {
  const auto* numbers = std::get_if<Numbers>(&value);
  return numbers ? ListedWithSpaces(*numbers) : Shown(value);
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

std::string Cell(double power) { return std::isnan(power) ? "" : Shortest(power); }

}  // namespace

std::string RenderCsv(const Report& report) {
  std::string names = "test";
  std::string values = report.test->name;
  const auto add = [&](const std::string& name, const std::string& value) {
    names += ',' + CsvField(name);
    values += ',' + CsvField(value);
  };
  // An input and a result may share a name, such as the wanted power and the one that is reached.
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

std::string RenderCsv(const ChartData& chart) {
  const Series& series = chart.series;
  std::string text;
  for (const Axis& axis : chart.chart->axes) text += CsvField(axis.title) + ',';
  text += "power\n";
  for (std::size_t i = 0; i < series.x.size(); ++i) {
    if (series.y.empty()) text += fmt::format("{},{}\n", Shortest(series.x[i]), Cell(series.power[i]));
    for (std::size_t j = 0; j < series.y.size(); ++j) {
      text += fmt::format("{},{},{}\n", Shortest(series.x[i]), Shortest(series.y[j]),
                          Cell(series.power[i * series.y.size() + j]));
    }
  }
  return text;
}

}  // namespace planner
