#include "words/list_json.h"

#include <limits>
#include <set>

#include "catalogue/catalogue.h"
#include "solve/axes.h"
#include "solve/possible_results.h"
#include "solve/solve.h"
#include "words/example_inputs.h"
#include "words/explain.h"
#include "words/render.h"
#include "words/report_json.h"

namespace planner {
namespace {

const char* WordOf(Kind kind) {
  switch (kind) {
    case Kind::Number: return "number";
    case Kind::Flag: return "flag";
    case Kind::Choice: return "choice";
    case Kind::List: return "list";
    case Kind::PerGroup: return "per-group";
  }
  return "";
}

void WriteLimits(JsonWriter& json, const Limits& limits) {
  json.Key("limits");
  json.OpenObject();
  if (limits.low > -std::numeric_limits<double>::infinity()) {
    json.Number(limits.lowAllowed ? "minimum" : "exclusive-minimum", limits.low);
  }
  if (limits.high < std::numeric_limits<double>::infinity()) {
    json.Number(limits.highAllowed ? "maximum" : "exclusive-maximum", limits.high);
  }
  if (limits.whole) json.Flag("whole", true);
  json.CloseObject();
}

/// Of a table, the inputs that say how large it is.
void WriteTable(JsonWriter& json, const Parameter& parameter) {
  if (parameter.rows) {
    json.Key("rows");
    json.Name(parameter.rows->Text());
  }
  if (parameter.columns) {
    json.Key("columns");
    json.Name(parameter.columns->Text());
  }
}

void WriteChoices(JsonWriter& json, const Parameter& parameter) {
  if (parameter.choices.empty()) return;
  WriteList(json, "choices", parameter.choices, [&](const Choice& choice) { json.Text(choice.word); });
  json.Key("wordings");
  json.OpenObject();
  for (const Choice& choice : parameter.choices) json.Text(choice.word, choice.wording);
  json.CloseObject();
}

}  // namespace

void WriteNames(JsonWriter& json, const char* key, const Names& names) {
  WriteList(json, key, names, [&](planner::Name name) { json.Name(name.Text()); });
}

void WriteParameter(JsonWriter& json, const Parameter& parameter) {
  json.OpenObject();
  json.Key("name");
  json.Name(parameter.name.Text());
  WriteList(json, "aliases", parameter.aliases, [&](const std::string& alias) { json.Text(alias); });
  json.Text("kind", WordOf(parameter.kind));
  json.Text("label", parameter.label);
  json.Text("meaning", parameter.meaning);
  if (!parameter.unit.empty()) json.Text("unit", parameter.unit);
  WriteLimits(json, parameter.limits);
  if (parameter.role == Role::Layout) json.Text("role", "layout");
  if (parameter.role == Role::Shape) json.Text("role", "shape");
  WriteTable(json, parameter);
  if (parameter.length != 0) json.Number("length", static_cast<double>(parameter.length));
  if (parameter.kind == Kind::PerGroup) json.Flag("spreads", parameter.spreads);
  WriteChoices(json, parameter);
  if (parameter.fallback) {
    json.Key("default");
    json.Of(*parameter.fallback);
  }
  json.CloseObject();
}

void WriteExample(JsonWriter& json, const Test& test, const Example& example) {
  json.OpenObject();
  json.Text("arguments", example.arguments);
  json.Key("inputs");
  json.OpenObject();
  for (const auto& [name, value] : InputsOf(test, example)) {
    json.KeyOfName(name);
    json.Of(value);
  }
  json.CloseObject();
  json.Text("sentence", example.sentence);
  json.CloseObject();
}

namespace {

void WriteResult(JsonWriter& json, const PossibleResult& result) {
  const ResultColumn& column = result.column;
  json.OpenObject();
  json.Key("name");
  json.Name(column.name);
  json.Text("label", column.label);
  json.Text("kind", WordOf(column.reading));
  if (result.isOptional) json.Flag("optional", true);
  json.CloseObject();
}

void WriteRoute(JsonWriter& json, const Test& test, const Route& route) {
  json.OpenObject();
  json.Text("question", WordOf(route.question));
  WriteNames(json, "needs", route.needs);
  WriteNames(json, "accepts", route.accepts);
  WriteList(json, "results", PossibleResults(test, route),
            [&](const PossibleResult& result) { WriteResult(json, result); });
  json.TextUnlessEmpty("export", route.exportName);
  json.TextUnlessEmpty("one-sided-export", route.oneSidedExport);
  json.CloseObject();
}

void WriteUnknown(JsonWriter& json, const Unknown& unknown) {
  json.OpenObject();
  json.Key("name");
  json.Name(unknown.input.Text());
  json.Text("target", WordOf(unknown.target));
  json.Text("trend", unknown.trend == Trend::Rises ? "rises" : "falls");
  json.Text("reason", unknown.reason);
  json.Flag("below", unknown.pieceBelow != nullptr);
  json.CloseObject();
}

void WriteCondition(JsonWriter& json, const Condition& condition) {
  json.OpenObject();
  json.Text("code", condition.code);
  WriteNames(json, "about", condition.about);
  json.Text("sentence", condition.sentence);
  json.CloseObject();
}

/// A derived figure or an assumption.
template <typename Named>
void WriteNamed(JsonWriter& json, const Named& named) {
  json.OpenObject();
  json.Key("name");
  json.Name(named.name);
  json.Text("label", named.label);
  WriteNames(json, "needs", named.needs);
  json.CloseObject();
}

void WriteAxis(JsonWriter& json, const Axis& axis) {
  json.OpenObject();
  json.Key("name");
  json.Name(axis.name);
  json.Text("title", axis.title);
  json.Text("symbol", axis.symbol);
  WriteLimits(json, axis.limits);
  if (axis.usual) {
    json.Key("usual");
    json.OpenObject();
    json.Number("from", axis.usual->from);
    json.Number("to", axis.usual->to);
    json.CloseObject();
  }
  json.CloseObject();
}

/// The sources of the formulas that answer the examples with sizes. Sizes found are checked by the same formulas.
std::set<std::string> SourcesOf(const Test& test) {
  std::set<std::string> sources;
  for (const Example& example : test.examples) {
    const InputValues values = InputsOf(test, example);
    if (!test.details || !values.contains("n") || values.contains("power") || values.contains("half-width")) continue;
    const std::string source = DetailsOf(Solve(test, values)).source;
    if (!source.empty()) sources.insert(source);
  }
  return sources;
}

/// Samples are one, two, or as many as the inputs give.
void WriteGroups(JsonWriter& json, const Test& test) {
  json.Key("groups");
  if (test.groups == groupsFromInputs) return json.Text("k");
  json.Number(test.groups);
  if (test.groups != 2) return;
  WriteList(json, "group-names", std::initializer_list<const char*>{"first group", "second group"},
            [&](const char* name) { json.Text(name); });
}

void WriteTest(JsonWriter& json, const Test& test) {
  json.OpenObject();
  json.Text("name", test.name);
  json.Text("title", test.title);
  json.Text("about", test.about);
  if (!test.whenNot.empty()) json.Text("when-not", test.whenNot);
  WriteGroups(json, test);
  json.Text("counted", test.counted);
  WriteList(json, "parameters", test.parameters, [&](const Parameter& one) { WriteParameter(json, one); });
  WriteList(json, "routes", test.routes, [&](const Route& one) { WriteRoute(json, test, one); });
  WriteList(json, "unknowns", test.unknowns, [&](const Unknown& one) { WriteUnknown(json, one); });
  WriteList(json, "conditions", test.conditions, [&](const Condition& one) { WriteCondition(json, one); });
  WriteList(json, "size-exists", test.sizeExists, [&](const Condition& one) { WriteCondition(json, one); });
  WriteList(json, "derived", test.derived, [&](const Derived& one) { WriteNamed(json, one); });
  WriteList(json, "assumptions", test.assumptions, [&](const Assumption& one) { WriteNamed(json, one); });
  WriteList(json, "sources", SourcesOf(test), [&](const std::string& source) { json.Text(source); });
  WriteList(json, "examples", test.examples, [&](const Example& one) { WriteExample(json, test, one); });
  WriteList(json, "axes", AllAxes(test), [&](const Axis& one) { WriteAxis(json, one); });
  json.CloseObject();
}

}  // namespace

std::string RenderListJson(JsonLayout layout) {
  std::string text;
  JsonWriter json(text, layout);
  json.OpenArray();
  for (const Test& test : Tests()) WriteTest(json, test);
  json.CloseArray();
  return text + '\n';
}

}  // namespace planner
