#include "values.h"

#include <algorithm>
#include <string>

#include "model/problem.h"

namespace kelplan {
namespace {

using Kind = JsonTree::Kind;

[[noreturn]] void Reject(const planner::Parameter& parameter, planner::Value value) {
  throw planner::InputError({.code = planner::Code::NotAllowed,
                             .inputs = {std::string(parameter.name.Text())},
                             .values = {std::move(value)},
                             .allowed = parameter});
}

/// A word as the choice has it: the names among them are understood with dashes and with underscores.
std::string WordOf(const planner::Parameter& parameter, const std::string& text) {
  std::string dashed = text;
  std::replace(dashed.begin(), dashed.end(), '_', '-');
  const bool isChoice = std::any_of(parameter.choices.begin(), parameter.choices.end(),
                                    [&](const planner::Choice& choice) { return choice.word == dashed; });
  return isChoice ? dashed : text;
}

planner::Value SingleValue(const planner::Parameter& parameter, const JsonTree& json) {
  switch (parameter.kind) {
    case planner::Kind::Number:
      if (json.Is(Kind::Number)) return json.number;
      break;
    case planner::Kind::Flag:
      if (json.Is(Kind::Flag)) return json.flag;
      break;
    case planner::Kind::Choice:
      if (json.Is(Kind::Text)) return WordOf(parameter, json.text);
      break;
    case planner::Kind::List:
    case planner::Kind::PerGroup:
      if (const auto numbers = NumbersOf(json); numbers && !numbers->empty()) return *numbers;
      break;
  }
  if (json.Is(Kind::Array) && json.items.empty()) Reject(parameter, planner::Numbers{});
  if (json.Is(Kind::Number)) Reject(parameter, json.number);
  if (json.Is(Kind::Flag)) Reject(parameter, json.flag);
  Reject(parameter, json.Is(Kind::Text) ? json.text : ShortText(json));
}

bool AreAlternatives(const planner::Parameter& parameter, const JsonTree& json) {
  if (!json.Is(Kind::Array) || json.items.empty()) return false;
  if (!parameter.IsList()) return true;
  return std::all_of(json.items.begin(), json.items.end(), [](const JsonTree& item) { return item.Is(Kind::Array); });
}

}  // namespace

std::optional<planner::Numbers> NumbersOf(const JsonTree& json) {
  if (json.Is(Kind::Number)) return planner::Numbers{json.number};
  if (!json.Is(Kind::Array)) return std::nullopt;
  planner::Numbers numbers;
  for (const JsonTree& item : json.items) {
    if (!item.Is(Kind::Number)) return std::nullopt;
    numbers.push_back(item.number);
  }
  return numbers;
}

std::vector<planner::Value> ValuesOf(const planner::Parameter& parameter, const JsonTree& json) {
  if (!AreAlternatives(parameter, json)) return {SingleValue(parameter, json)};
  std::vector<planner::Value> values;
  for (const JsonTree& item : json.items) values.push_back(SingleValue(parameter, item));
  return values;
}

}  // namespace kelplan
