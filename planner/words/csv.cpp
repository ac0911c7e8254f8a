#include "words/csv.h"

#include <algorithm>
#include <cmath>

#include "format/format.h"
#include "words/numbers.h"
#include "words/render.h"

namespace planner {
namespace {

std::string Cell(double power) { return std::isnan(power) ? "" : Shortest(power); }

/// "power", of several curves "power (effect-d 0.2)".
std::string ColumnOf(const ChartData& chart, const ChartCurve& curve) {
  const std::string quantity = chart.quantity == Quantity::Power       ? "power"
                               : chart.quantity == Quantity::HalfWidth ? "half-width"
                                                                       : "sample size";
  if (!curve.alternative) return quantity;
  return Formatted("{} ({} {})", quantity, chart.varied->Text(), CsvValue(*curve.alternative));
}

}  // namespace

std::string RenderCsv(const Report& report) {
  std::string names = "test";
  std::string values = report.test->name;
  const auto add = [&](const std::string& name, const std::string& value) {
    names += ',' + CsvField(name);
    values += ',' + CsvField(value);
  };
  for (const Entry& entry : report.inputs) add(entry.name, CsvValue(entry.value));
  for (const Entry& entry : report.results) {
    // An effect size that was given stands among its conversions once more.
    const bool isThere = std::any_of(report.inputs.begin(), report.inputs.end(),
                                     [&](const Entry& input) { return input.name == entry.name; });
    if (!isThere) add(entry.name, CsvValue(entry.value));
  }
  return names + '\n' + values + '\n';
}

std::string RenderCsv(const ChartData& chart) {
  const Series& series = chart.First();
  std::string text;
  for (const Axis& axis : chart.axes) text += CsvField(axis.title) + ',';
  for (std::size_t k = 0; k < chart.curves.size(); ++k) {
    if (k > 0) text += ',';
    text += CsvField(ColumnOf(chart, chart.curves[k]));
  }
  text += '\n';
  for (std::size_t i = 0; i < series.x.size(); ++i) {
    if (!chart.IsSurface()) {
      text += Shortest(series.x[i]);
      for (const ChartCurve& curve : chart.curves) text += ',' + Cell(curve.series.value[i]);
      text += '\n';
    }
    for (std::size_t j = 0; j < series.y.size(); ++j) {
      text += Formatted("{},{},{}\n", Shortest(series.x[i]), Shortest(series.y[j]),
                        Cell(series.value[i * series.y.size() + j]));
    }
  }
  return text;
}

}  // namespace planner
