#include "words/chart_json.h"

#include <span>

#include "model/question.h"
#include "model/test.h"
#include "words/render.h"

namespace planner {
namespace {

const char* WordOf(Quantity quantity) {
  switch (quantity) {
    case Quantity::Power: return "power";
    case Quantity::HalfWidth: return "half-width";
    case Quantity::Size: return "sample-size";
  }
  return "";
}

void WriteAxes(JsonWriter& json, const std::vector<Axis>& axes) {
  json.Key("axes");
  json.OpenArray();
  for (const Axis& axis : axes) {
    json.OpenObject();
    json.Key("name");
    json.Name(axis.name);
    json.Text("title", axis.title);
    json.CloseObject();
  }
  json.CloseArray();
}

/// The inputs of the design, also those that had to be found or have a default.
void WriteInputs(JsonWriter& json, const Test& test, const ChartCurve& curve) {
  json.Key("inputs");
  json.OpenObject();
  for (const Parameter& parameter : test.parameters) {
    const bool isOfRoute = curve.route->Takes(parameter.name) || parameter.name == AskedBy(curve.route->question);
    const bool isFlag = parameter.kind == Kind::Flag;
    if (!isOfRoute && parameter.name != Name("alpha")) continue;
    if (!curve.design.Has(parameter.name) && !isFlag) continue;
    json.KeyOfName(parameter.name.Text());
    if (isFlag) {
      json.Flag(curve.design.Has(parameter.name) && curve.design.Flag(parameter.name));
    } else {
      json.Of(curve.design.ValueOf(parameter));
    }
  }
  json.CloseObject();
}

void WriteMark(JsonWriter& json, const DesignMark& mark, const char* quantity) {
  json.Key("design");
  json.OpenObject();
  json.Key("at");
  json.Of(mark.at);
  json.KeyOfName(quantity);
  json.Number(mark.value);
  json.CloseObject();
}

void WriteValues(JsonWriter& json, std::span<const double> values) {
  json.OpenArray();
  for (double value : values) json.Number(value);
  json.CloseArray();
}

/// Of a surface, a list for each point of the first axis.
void WriteSeries(JsonWriter& json, const Series& series, bool isSurface) {
  const std::span<const double> values(series.value);
  if (!isSurface) return WriteValues(json, values);
  json.OpenArray();
  const std::size_t row = series.y.size();
  for (std::size_t i = 0; i < series.x.size(); ++i) WriteValues(json, values.subspan(i * row, row));
  json.CloseArray();
}

void WriteCurve(JsonWriter& json, const ChartData& chart, const ChartCurve& curve) {
  const char* const quantity = WordOf(chart.quantity);
  json.OpenObject();
  if (curve.alternative) {
    json.KeyOfName(chart.varied->Text());
    json.Of(*curve.alternative);
  }
  WriteInputs(json, *chart.test, curve);
  if (curve.mark) WriteMark(json, *curve.mark, quantity);
  json.KeyOfName(quantity);
  WriteSeries(json, curve.series, chart.IsSurface());
  json.TextUnlessEmpty("export", curve.route->ExportFor(curve.design));
  json.CloseObject();
}

void WritePoints(JsonWriter& json, const char* key, const Numbers& points) {
  json.Key(key);
  json.Of(points);
}

}  // namespace

void WriteChart(JsonWriter& json, const ChartData& chart) {
  json.Text("test", chart.test->name);
  json.Text("chart", chart.name);
  WriteAxes(json, chart.axes);
  json.Text("quantity", WordOf(chart.quantity));
  WritePoints(json, "x", chart.First().x);
  if (chart.IsSurface()) WritePoints(json, "y", chart.First().y);
  if (chart.varied) {
    json.Key("varied");
    json.Name(chart.varied->Text());
  }
  json.Key("curves");
  json.OpenArray();
  for (const ChartCurve& curve : chart.curves) WriteCurve(json, chart, curve);
  json.CloseArray();
}

std::string RenderJson(const ChartData& chart) {
  std::string text;
  JsonWriter json(text);
  json.OpenObject();
  WriteChart(json, chart);
  json.CloseObject();
  return text + '\n';
}

}  // namespace planner
