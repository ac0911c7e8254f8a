#include "words/report_json.h"

#include "words/render.h"

namespace planner {
namespace {

void WriteEntries(JsonWriter& json, const char* key, const std::vector<Entry>& entries) {
  json.Key(key);
  json.OpenObject();
  for (const Entry& entry : entries) {
    json.KeyOfName(entry.name);
    json.Of(entry.value);
  }
  json.CloseObject();
}

void WriteProgram(JsonWriter& json, const ProgramCall& program) {
  json.OpenObject();
  json.Text("program", program.program);
  json.Text("call", program.call);
  json.Flag("same", program.isSame);
  if (!program.remark.empty()) json.Text("remark", program.remark);
  json.CloseObject();
}

/// The formulas of effect sizes that are converted, by the names of these.
void WriteFormulas(JsonWriter& json, const Explanation& explanation) {
  for (const auto& [name, label, formula, source] : explanation.formulas) {
    json.KeyOfName(name);
    json.OpenObject();
    json.Text("formula", formula);
    json.Text("source", source);
    json.CloseObject();
  }
}

void WriteFormula(JsonWriter& json, const Explanation& explanation) {
  json.Key("figures");
  json.OpenObject();
  for (const ExplainedFigure& figure : explanation.figures) {
    json.KeyOfName(figure.name);
    json.Number(figure.value);
  }
  json.CloseObject();
  json.Text("formula", explanation.formula);
  json.Text("source", explanation.source);
  json.Key("programs");
  json.OpenArray();
  for (const ProgramCall& program : explanation.programs) WriteProgram(json, program);
  json.CloseArray();
}

void WriteExplanation(JsonWriter& json, const Explanation& explanation) {
  json.Key("details");
  json.OpenObject();
  explanation.formulas.empty() ? WriteFormula(json, explanation) : WriteFormulas(json, explanation);
  json.CloseObject();
}

}  // namespace

const char* WordOf(Question question) {
  switch (question) {
    case Question::Power: return "power";
    case Question::SampleSize: return "sample-size";
    case Question::HalfWidth: return "half-width";
    case Question::SampleSizeForHalfWidth: return "sample-size-for-half-width";
    case Question::EffectSizes: return "effect-sizes";
  }
  return "";
}

const char* WordOf(Reading reading) {
  switch (reading) {
    case Reading::Figure: return "figure";
    case Reading::Sizes: return "sizes";
    case Reading::Size: return "size";
    case Reading::Power: return "power";
    case Reading::HalfWidth: return "half-width";
  }
  return "";
}

void WriteReport(JsonWriter& json, const Report& report) {
  json.Text("test", report.test->name);
  json.Text("question", WordOf(report.question));
  WriteEntries(json, "inputs", report.inputs);
  if (!report.assumptions.empty()) WriteEntries(json, "assumptions", report.assumptions);
  WriteEntries(json, "results", report.results);
  json.Text("sentence", report.sentence);
  json.TextUnlessEmpty("note", report.note);
  json.TextUnlessEmpty("export", report.exportName);
  if (report.explanation) WriteExplanation(json, *report.explanation);
}

std::string RenderJson(const Report& report) {
  constexpr int schemaVersion = 1;  // grows when a field changes its name or meaning
  std::string text;
  JsonWriter json(text, JsonLayout::Lines);
  json.OpenObject();
  json.Number("schema-version", schemaVersion);
  WriteReport(json, report);
  json.CloseObject();
  return text + '\n';
}

}  // namespace planner
