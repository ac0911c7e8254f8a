#include "words/parse.h"

#include <fmt/format.h>

#include <cmath>
#include <optional>
#include <utility>

#include "model/problem.h"
#include "words/numbers.h"

namespace planner {
namespace {

std::optional<Value> ReadFlag(std::string_view text) {
  if (text != "yes" && text != "no") return std::nullopt;
  return text == "yes";
}

std::optional<Value> ReadNumber(std::string_view text) {
  double number = 0;
  if (!ParseNumber(text, number)) return std::nullopt;
  return number;
}

std::optional<Value> ReadNumbers(std::string_view text) {
  Numbers numbers;
  for (;;) {
    const std::size_t comma = text.find(',');
    double number = 0;
    if (!ParseNumber(text.substr(0, comma), number)) return std::nullopt;
    numbers.push_back(number);
    if (comma == std::string_view::npos) return numbers;
    text.remove_prefix(comma + 1);
  }
}

std::optional<Value> Read(const Parameter& parameter, std::string_view text) {
  if (parameter.kind == Kind::Flag) return ReadFlag(text);
  if (parameter.kind == Kind::Number) return ReadNumber(text);
  if (parameter.IsList()) return ReadNumbers(text);
  return std::string(text);
}

}  // namespace

std::string Text(const Limits& limits) {
  const auto& [low, high, lowAllowed, highAllowed, whole] = limits;
  const std::string noun = whole ? "whole number" : "number";
  const bool hasLow = std::isfinite(low);
  const bool hasHigh = std::isfinite(high);
  if (hasLow && hasHigh && lowAllowed && highAllowed) {
    return fmt::format("a {} from {} to {}", noun, Shortest(low), Shortest(high));
  }
  if (hasLow && hasHigh && !lowAllowed && !highAllowed) {
    return fmt::format("a {} between {} and {}, neither included", noun, Shortest(low), Shortest(high));
  }
  std::string text = "a " + noun;
  if (hasLow) text += (lowAllowed ? " of at least " : " above ") + Shortest(low);
  if (hasLow && hasHigh) text += " and";
  if (hasHigh) text += (highAllowed ? " of at most " : " below ") + Shortest(high);
  return text;
}

std::string Allowed(const Parameter& parameter) {
  const std::string each = Text(parameter.limits);
  std::vector<std::string> words;
  for (const Choice& choice : parameter.choices) words.push_back(choice.word);
  switch (parameter.kind) {
    case Kind::Flag: return "yes or no";
    case Kind::Choice: return Joined(words, " or ");
    case Kind::Number: return each;
    case Kind::List:
      if (parameter.length != 0) return fmt::format("{} numbers, each {}", parameter.length, each);
      break;
    case Kind::PerGroup:
      if (parameter.spreads) return fmt::format("{}, or a list of such, one for each group", each);
      break;
  }
  return fmt::format("a list like 1,2,3, each entry {}", each);
}

Value Parse(const Parameter& parameter, std::string_view text) {
  std::optional<Value> value = Read(parameter, text);
  if (value && parameter.Allows(*value)) return *std::move(value);
  throw InputError({.code = Code::NotAllowed,
                    .inputs = {std::string(parameter.name.Text())},
                    .values = {value ? *std::move(value) : Value(std::string(text))},
                    .allowed = parameter});
}

}  // namespace planner
