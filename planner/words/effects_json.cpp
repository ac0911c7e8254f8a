#include "catalogue/effects.h"
#include "words/list_json.h"
#include "words/render.h"

namespace planner {
namespace {

void WriteTexts(JsonWriter& json, const char* key, const std::vector<std::string>& texts) {
  WriteList(json, key, texts, [&](const std::string& text) { json.Text(text); });
}

void WriteFormula(JsonWriter& json, const EffectFormula& formula) {
  json.OpenObject();
  if (!formula.from.empty()) json.Text("from", formula.from);
  WriteNames(json, "needs", formula.needs);
  json.Text("formula", formula.formula);
  json.Text("source", formula.source);
  if (!formula.note.empty()) json.Text("note", formula.note);
  json.CloseObject();
}

void WriteSize(JsonWriter& json, const EffectSize& size, const std::vector<EffectFormula>& formulas) {
  json.OpenObject();
  json.Text("name", size.name);
  json.Text("label", size.label);
  json.Key("formulas");
  json.OpenArray();
  for (const EffectFormula& formula : formulas) {
    if (formula.effect == size.name) WriteFormula(json, formula);
  }
  json.CloseArray();
  json.CloseObject();
}

void WriteConversion(JsonWriter& json, const EffectConversion& conversion) {
  json.OpenObject();
  json.Text("title", conversion.title);
  WriteNames(json, "needs", conversion.needs);
  WriteNames(json, "accepts", conversion.accepts);
  WriteTexts(json, "gives", conversion.gives);
  json.Key("uses");
  json.OpenArray();
  for (const auto& [test, input, effects] : conversion.uses) {
    json.OpenObject();
    json.Text("test", test);
    json.Text("input", input.Text());
    WriteTexts(json, "effects", effects);
    json.CloseObject();
  }
  json.CloseArray();
  json.CloseObject();
}

void WriteExample(JsonWriter& json, const Example& example) {
  json.OpenObject();
  json.Text("arguments", example.arguments);
  json.Text("sentence", example.sentence);
  json.CloseObject();
}

}  // namespace

std::string RenderEffectsJson() {
  const Effects& effects = EffectSizes();
  std::string text;
  JsonWriter json(text, JsonLayout::Lines);
  json.OpenObject();
  json.Text("name", effects.inputs.name);
  json.Text("title", effects.inputs.title);
  json.Text("about", effects.inputs.about);
  WriteList(json, "parameters", effects.inputs.parameters, [&](const Parameter& one) { WriteParameter(json, one); });
  WriteList(json, "conversions", effects.conversions, [&](const EffectConversion& one) { WriteConversion(json, one); });
  WriteList(json, "effect-sizes", effects.sizes,
            [&](const EffectSize& one) { WriteSize(json, one, effects.formulas); });
  WriteList(json, "examples", effects.inputs.examples, [&](const Example& one) { WriteExample(json, one); });
  json.CloseObject();
  return text + '\n';
}

}  // namespace planner
