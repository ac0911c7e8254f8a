#include "catalogue/effects.h"
#include "words/list_json.h"
#include "words/render.h"

namespace planner {
namespace {

void WriteTexts(JsonWriter& json, const char* key, const std::vector<std::string>& names) {
  WriteList(json, key, names, [&](const std::string& name) { json.Name(name); });
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
  json.Key("name");
  json.Name(size.name);
  json.Text("label", size.label);
  json.Key("formulas");
  json.OpenArray();
  for (const EffectFormula& formula : formulas) {
    if (formula.effect == size.name) WriteFormula(json, formula);
  }
  json.CloseArray();
  json.CloseObject();
}

/// `title` is that of the conversion, or of the one before it whose heading it stands under.
void WriteConversion(JsonWriter& json, const EffectConversion& conversion, const std::string& title) {
  json.OpenObject();
  json.Text("title", title);
  WriteNames(json, "needs", conversion.needs);
  WriteNames(json, "accepts", conversion.accepts);
  WriteTexts(json, "gives", conversion.gives);
  WriteList(json, "uses", conversion.uses, [&](const auto& use) {
    json.OpenObject();
    json.Text("test", use.test);
    json.Key("input");
    json.Name(use.input.Text());
    WriteTexts(json, "effects", use.effects);
    json.CloseObject();
  });
  json.CloseObject();
}

}  // namespace

std::string RenderEffectsJson(JsonLayout layout) {
  const Effects& effects = EffectSizes();
  std::string text;
  JsonWriter json(text, layout);
  json.OpenObject();
  json.Text("name", effects.inputs.name);
  json.Text("title", effects.inputs.title);
  json.Text("about", effects.inputs.about);
  WriteList(json, "parameters", effects.inputs.parameters, [&](const Parameter& one) { WriteParameter(json, one); });
  std::string title;
  WriteList(json, "conversions", effects.conversions, [&](const EffectConversion& one) {
    if (!one.title.empty()) title = one.title;
    WriteConversion(json, one, title);
  });
  WriteList(json, "effect-sizes", effects.sizes,
            [&](const EffectSize& one) { WriteSize(json, one, effects.formulas); });
  WriteList(json, "examples", effects.inputs.examples,
            [&](const Example& one) { WriteExample(json, effects.inputs, one); });
  json.CloseObject();
  return text + '\n';
}

}  // namespace planner
