#include <cmath>
#include <cstdint>
#include <limits>
#include <nlohmann/json.hpp>

#include "catalogue/catalogue.h"
#include "catalogue/effects.h"
#include "solve/axes.h"
#include "words/render.h"

namespace planner {
namespace {

using Json = nlohmann::ordered_json;

/// Whole numbers are written without a decimal point.
Json ToJson(double number) {
  constexpr double largestExactWhole = 9007199254740992;  // 2^53
  if (number == std::trunc(number) && std::abs(number) <= largestExactWhole) return static_cast<std::int64_t>(number);
  return number;
}

Json ToJson(const Value& value) {
  if (const auto* flag = std::get_if<bool>(&value)) return *flag;
  if (const auto* number = std::get_if<double>(&value)) return ToJson(*number);
  if (const auto* word = std::get_if<std::string>(&value)) return *word;
  Json list = Json::array();
  for (double number : std::get<Numbers>(value)) list.push_back(ToJson(number));
  return list;
}

Json ToJson(const std::vector<Entry>& entries) {
  Json object = Json::object();
  for (const Entry& entry : entries) object[entry.name] = ToJson(entry.value);
  return object;
}

Json ToJson(const Explanation& explanation) {
  Json object;
  for (const auto& [name, label, formula, source] : explanation.formulas) {
    object[name] = {{"formula", formula}, {"source", source}};
  }
  if (!explanation.formulas.empty()) return object;
  object["figures"] = Json::object();
  for (const auto& figure : explanation.figures) object["figures"][figure.name] = ToJson(figure.value);
  object["formula"] = explanation.formula;
  object["source"] = explanation.source;
  object["programs"] = Json::array();
  for (const auto& [program, call, isSame, remark] : explanation.programs) {
    Json entry{{"program", program}, {"call", call}, {"same", isSame}};
    if (!remark.empty()) entry["remark"] = remark;
    object["programs"].push_back(std::move(entry));
  }
  return object;
}

const char* TextOf(Kind kind) {
  switch (kind) {
    case Kind::Number: return "number";
    case Kind::Flag: return "flag";
    case Kind::Choice: return "choice";
    case Kind::List: return "list";
    case Kind::PerGroup: return "per-group";
  }
  return "";
}

const char* TextOf(Question question) {
  switch (question) {
    case Question::Power: return "power";
    case Question::SampleSize: return "sample-size";
    case Question::HalfWidth: return "half-width";
    case Question::SampleSizeForHalfWidth: return "sample-size-for-half-width";
    case Question::EffectSizes: return "effect-sizes";
  }
  return "";
}

Json ToJson(const Limits& limits) {
  Json object = Json::object();
  if (limits.low > -std::numeric_limits<double>::infinity()) {
    object[limits.lowAllowed ? "minimum" : "exclusive-minimum"] = ToJson(limits.low);
  }
  if (limits.high < std::numeric_limits<double>::infinity()) {
    object[limits.highAllowed ? "maximum" : "exclusive-maximum"] = ToJson(limits.high);
  }
  if (limits.whole) object["whole"] = true;
  return object;
}

Json ToJson(const Names& names) {
  Json list = Json::array();
  for (Name name : names) list.push_back(name.Text());
  return list;
}

Json ToJson(const Parameter& parameter) {
  Json object;
  object["name"] = parameter.name.Text();
  object["aliases"] = parameter.aliases;
  object["kind"] = TextOf(parameter.kind);
  object["label"] = parameter.label;
  object["meaning"] = parameter.meaning;
  if (!parameter.unit.empty()) object["unit"] = parameter.unit;
  object["limits"] = ToJson(parameter.limits);
  if (parameter.length != 0) object["length"] = parameter.length;
  if (parameter.kind == Kind::PerGroup) object["spreads"] = parameter.spreads;
  for (const Choice& choice : parameter.choices) object["choices"].push_back(choice.word);
  if (parameter.fallback) object["default"] = ToJson(*parameter.fallback);
  return object;
}

Json ToJson(const Route& route) {
  Json object{{"question", TextOf(route.question)},
              {"needs", ToJson(route.needs)},
              {"accepts", ToJson(route.accepts)},
              {"export", route.exportName}};
  if (!route.oneSidedExport.empty()) object["one-sided-export"] = route.oneSidedExport;
  return object;
}

Json ToJson(const Unknown& unknown) {
  return {{"name", unknown.input.Text()},
          {"target", TextOf(unknown.target)},
          {"trend", unknown.trend == Trend::Rises ? "rises" : "falls"},
          {"reason", unknown.reason},
          {"below", unknown.pieceBelow != nullptr}};
}

Json ToJson(const Axis& axis) {
  return {{"name", axis.name}, {"title", axis.title}, {"symbol", axis.symbol}, {"limits", ToJson(axis.limits)}};
}

Json ToJson(const Test& test) {
  Json object;
  object["name"] = test.name;
  object["title"] = test.title;
  object["about"] = test.about;
  object["counted"] = test.counted;
  for (const Parameter& parameter : test.parameters) object["parameters"].push_back(ToJson(parameter));
  for (const Route& route : test.routes) object["routes"].push_back(ToJson(route));
  for (const Unknown& unknown : test.unknowns) object["unknowns"].push_back(ToJson(unknown));
  for (const Example& example : test.examples) {
    object["examples"].push_back({{"arguments", example.arguments}, {"sentence", example.sentence}});
  }
  for (const Axis& axis : AllAxes(test)) object["axes"].push_back(ToJson(axis));
  return object;
}

const char* TextOf(Quantity quantity) {
  switch (quantity) {
    case Quantity::Power: return "power";
    case Quantity::HalfWidth: return "half-width";
    case Quantity::Size: return "sample-size";
  }
  return "";
}

/// The inputs of the design, also those that had to be found or have a default.
Json InputsOf(const ChartData& chart, const ChartCurve& curve) {
  Json object = Json::object();
  for (const Parameter& parameter : chart.test->parameters) {
    const bool isOfRoute = curve.route->Takes(parameter.name) || parameter.name == AskedBy(curve.route->question);
    const bool isFlag = parameter.kind == Kind::Flag;
    if (!isOfRoute && parameter.name != Name("alpha")) continue;
    if (!curve.design.Has(parameter.name) && !isFlag) continue;
    const bool isSet = curve.design.Has(parameter.name) && curve.design.Flag(parameter.name);
    object[parameter.name.Text()] = isFlag ? Json(isSet) : ToJson(curve.design.ValueOf(parameter));
  }
  return object;
}

Json ToJson(const EffectFormula& formula) {
  Json object;
  if (!formula.from.empty()) object["from"] = formula.from;
  object["needs"] = ToJson(formula.needs);
  object["formula"] = formula.formula;
  object["source"] = formula.source;
  if (!formula.note.empty()) object["note"] = formula.note;
  return object;
}

Json ToJson(const EffectSize& size, const std::vector<EffectFormula>& formulas) {
  Json object{{"name", size.name}, {"label", size.label}, {"formulas", Json::array()}};
  for (const EffectFormula& formula : formulas) {
    if (formula.effect == size.name) object["formulas"].push_back(ToJson(formula));
  }
  return object;
}

Json ToJson(const EffectConversion& conversion) {
  Json object{{"title", conversion.title},
              {"needs", ToJson(conversion.needs)},
              {"accepts", ToJson(conversion.accepts)},
              {"gives", conversion.gives},
              {"uses", Json::array()}};
  for (const auto& [test, input, effects] : conversion.uses) {
    object["uses"].push_back({{"test", test}, {"input", input.Text()}, {"effects", effects}});
  }
  return object;
}

Json PowersOf(const Numbers& powers, std::size_t first, std::size_t count) {
  Json list = Json::array();
  for (std::size_t i = first; i < first + count; ++i) {
    list.push_back(std::isnan(powers[i]) ? Json() : Json(powers[i]));
  }
  return list;
}

Json CurveOf(const ChartData& chart, const ChartCurve& curve) {
  const Series& series = curve.series;
  Json object;
  if (curve.alternative) object[chart.varied->Text()] = ToJson(*curve.alternative);
  object["inputs"] = InputsOf(chart, curve);
  const char* quantity = TextOf(chart.quantity);
  if (curve.mark) object["design"] = {{"at", curve.mark->at}, {quantity, curve.mark->value}};
  if (!chart.IsSurface()) {
    object[quantity] = PowersOf(series.value, 0, series.value.size());
  } else {
    object[quantity] = Json::array();
    const std::size_t row = series.y.size();
    for (std::size_t i = 0; i < series.x.size(); ++i) object[quantity].push_back(PowersOf(series.value, i * row, row));
  }
  object["export"] = curve.route->ExportFor(curve.design);
  return object;
}

std::string Text(const Json& json) { return json.dump(2, ' ', false, Json::error_handler_t::replace) + '\n'; }

}  // namespace

std::string RenderJson(const Report& report) {
  constexpr int schemaVersion = 1;  // grows when a field changes its name or meaning
  Json object;
  object["schema-version"] = schemaVersion;
  object["test"] = report.test->name;
  object["question"] = TextOf(report.question);
  object["inputs"] = ToJson(report.inputs);
  if (!report.assumptions.empty()) object["assumptions"] = ToJson(report.assumptions);
  object["results"] = ToJson(report.results);
  object["sentence"] = report.sentence;
  if (!report.note.empty()) object["note"] = report.note;
  if (!report.exportName.empty()) object["export"] = report.exportName;
  if (report.explanation) object["details"] = ToJson(*report.explanation);
  return Text(object);
}

std::string RenderJson(const ChartData& chart) {
  Json object;
  object["test"] = chart.test->name;
  object["chart"] = chart.name;
  for (const Axis& axis : chart.axes) object["axes"].push_back({{"name", axis.name}, {"title", axis.title}});
  object["quantity"] = TextOf(chart.quantity);
  object["x"] = chart.First().x;
  if (chart.IsSurface()) object["y"] = chart.First().y;
  if (chart.varied) object["varied"] = chart.varied->Text();
  for (const ChartCurve& curve : chart.curves) object["curves"].push_back(CurveOf(chart, curve));
  return object.dump() + '\n';
}

std::string RenderListJson() {
  Json tests = Json::array();
  for (const Test& test : Tests()) tests.push_back(ToJson(test));
  return Text(tests);
}

std::string RenderEffectsJson() {
  const Effects& effects = EffectSizes();
  Json object{{"name", effects.inputs.name}, {"title", effects.inputs.title}, {"about", effects.inputs.about}};
  for (const Parameter& parameter : effects.inputs.parameters) object["parameters"].push_back(ToJson(parameter));
  for (const EffectConversion& conversion : effects.conversions) object["conversions"].push_back(ToJson(conversion));
  for (const EffectSize& size : effects.sizes) object["effect-sizes"].push_back(ToJson(size, effects.formulas));
  for (const Example& example : effects.inputs.examples) {
    object["examples"].push_back({{"arguments", example.arguments}, {"sentence", example.sentence}});
  }
  return Text(object);
}

}  // namespace planner
