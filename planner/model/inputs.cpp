#include "model/inputs.h"

#include <algorithm>

namespace planner {

void Inputs::SetValue(const Parameter& parameter, const Value& value) {
  if (const auto* flag = std::get_if<bool>(&value)) return Set(parameter.name, *flag ? 1 : 0);
  if (const auto* number = std::get_if<double>(&value)) return Set(parameter.name, *number);
  if (const auto* numbers = std::get_if<Numbers>(&value)) return SetList(parameter.name, *numbers);
  const auto& word = std::get<std::string>(value);
  const auto& choices = parameter.choices;
  const auto chosen =
      std::find_if(choices.begin(), choices.end(), [&](const auto& choice) { return choice.word == word; });
  if (chosen != choices.end()) Set(parameter.name, chosen->code);
}

Value Inputs::ValueOf(const Parameter& parameter) const {
  if (parameter.kind == Kind::Flag) return Flag(parameter.name);
  if (parameter.kind == Kind::Number) return Number(parameter.name);
  if (parameter.IsList()) return List(parameter.name);
  const int code = Choice(parameter.name);
  const auto& choices = parameter.choices;
  return std::find_if(choices.begin(), choices.end(), [&](const auto& choice) { return choice.code == code; })->word;
}

Numbers Inputs::Weights() const {
  if (Has("n")) return List("n");
  if (Has("ratios")) return List("ratios");
  return Numbers(static_cast<std::size_t>(groups_), 1.0);
}

}  // namespace planner
