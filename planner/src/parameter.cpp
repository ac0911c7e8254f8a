#include "planner/parameter.h"

#include <fmt/format.h>

#include <cmath>
#include <utility>

#include "planner/error.h"

namespace planner {
namespace {

Parameter Make(Kind kind, std::string name, std::string label, std::string meaning) {
  Parameter parameter{};
  parameter.kind = kind;
  parameter.name = std::move(name);
  parameter.label = std::move(label);
  parameter.meaning = std::move(meaning);
  return parameter;
}

bool IsList(const Parameter& parameter) { return parameter.kind == Kind::List || parameter.kind == Kind::PerGroup; }

std::string JoinedWords(const std::vector<Choice>& choices) {
  std::string text;
  for (std::size_t i = 0; i < choices.size(); ++i) {
    if (i > 0) text += i + 1 == choices.size() ? " or " : ", ";
    text += choices[i].word;
  }
  return text;
}

[[noreturn]] void Reject(const Parameter& parameter, const std::string& shown) {
  throw InputError(fmt::format("--{} is {}, but must be {}.", parameter.name, shown, Allowed(parameter)));
}

void CheckNumber(const Parameter& parameter, double number) {
  if (!parameter.limits.Allow(number)) Reject(parameter, Shortest(number));
}

void CheckList(const Parameter& parameter, const Numbers& numbers) {
  if (numbers.empty()) Reject(parameter, "empty");
  if (parameter.length != 0 && numbers.size() != parameter.length) Reject(parameter, Listed(numbers));
  for (double number : numbers) {
    if (!parameter.limits.Allow(number)) Reject(parameter, Listed(numbers));
  }
}

void CheckChoice(const Parameter& parameter, const std::string& word) {
  for (const Choice& choice : parameter.choices) {
    if (choice.word == word) return;
  }
  Reject(parameter, '"' + word + '"');
}

Numbers ParseNumbers(const Parameter& parameter, std::string_view text) {
  Numbers numbers;
  std::string_view rest = text;
  for (;;) {
    const std::size_t comma = rest.find(',');
    double number = 0;
    if (!ParseNumber(rest.substr(0, comma), number)) Reject(parameter, fmt::format("\"{}\"", text));
    numbers.push_back(number);
    if (comma == std::string_view::npos) return numbers;
    rest.remove_prefix(comma + 1);
  }
}

}  // namespace

bool Limits::Allow(double number) const {
  if (!std::isfinite(number)) return false;
  if (whole && number != std::trunc(number)) return false;
  if (lowAllowed ? number < low : number <= low) return false;
  if (highAllowed ? number > high : number >= high) return false;
  return true;
}

std::string Limits::Text() const {
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

Parameter Parameter::Above(double low) const {
  Parameter copy = *this;
  copy.limits.low = low;
  copy.limits.lowAllowed = false;
  return copy;
}

Parameter Parameter::AtLeast(double low) const {
  Parameter copy = *this;
  copy.limits.low = low;
  copy.limits.lowAllowed = true;
  return copy;
}

Parameter Parameter::Below(double high) const {
  Parameter copy = *this;
  copy.limits.high = high;
  copy.limits.highAllowed = false;
  return copy;
}

Parameter Parameter::AtMost(double high) const {
  Parameter copy = *this;
  copy.limits.high = high;
  copy.limits.highAllowed = true;
  return copy;
}

Parameter Parameter::Whole() const {
  Parameter copy = *this;
  copy.limits.whole = true;
  return copy;
}

Parameter Parameter::Length(std::size_t entries) const {
  Parameter copy = *this;
  copy.length = entries;
  return copy;
}

Parameter Parameter::Spreads() const {
  Parameter copy = *this;
  copy.spreads = true;
  return copy;
}

Parameter Parameter::Alias(std::string other) const {
  Parameter copy = *this;
  copy.aliases.push_back(std::move(other));
  return copy;
}

Parameter Parameter::Default(Value value) const {
  Parameter copy = *this;
  copy.fallback = std::move(value);
  return copy;
}

Parameter Parameter::Unit(std::string text) const {
  Parameter copy = *this;
  copy.unit = std::move(text);
  return copy;
}

Parameter Number(std::string name, std::string label, std::string meaning) {
  return Make(Kind::Number, std::move(name), std::move(label), std::move(meaning));
}

Parameter Flag(std::string name, std::string label, std::string meaning) {
  return Make(Kind::Flag, std::move(name), std::move(label), std::move(meaning)).Default(false);
}

Parameter OneOf(std::string name, std::string label, std::string meaning, std::vector<Choice> choices) {
  Parameter parameter = Make(Kind::Choice, std::move(name), std::move(label), std::move(meaning));
  parameter.choices = std::move(choices);
  return parameter;
}

Parameter List(std::string name, std::string label, std::string meaning) {
  return Make(Kind::List, std::move(name), std::move(label), std::move(meaning));
}

Parameter PerGroup(std::string name, std::string label, std::string meaning) {
  return Make(Kind::PerGroup, std::move(name), std::move(label), std::move(meaning));
}

void Check(const Parameter& parameter, const Value& value) {
  const bool* flag = std::get_if<bool>(&value);
  const double* number = std::get_if<double>(&value);
  const Numbers* numbers = std::get_if<Numbers>(&value);
  const std::string* word = std::get_if<std::string>(&value);
  if (parameter.kind == Kind::Flag && flag != nullptr) return;
  if (parameter.kind == Kind::Number && number) return CheckNumber(parameter, *number);
  if (parameter.kind == Kind::Choice && word) return CheckChoice(parameter, *word);
  if (IsList(parameter) && numbers) return CheckList(parameter, *numbers);
  Reject(parameter, Shown(value));
}

Value Parse(const Parameter& parameter, std::string_view text) {
  Value value;
  if (parameter.kind == Kind::Flag) {
    if (text != "yes" && text != "no") Reject(parameter, fmt::format("\"{}\"", text));
    value = text == "yes";
  } else if (parameter.kind == Kind::Choice) {
    value = std::string(text);
  } else if (IsList(parameter)) {
    value = ParseNumbers(parameter, text);
  } else {
    double number = 0;
    if (!ParseNumber(text, number)) Reject(parameter, fmt::format("\"{}\"", text));
    value = number;
  }
  Check(parameter, value);
  return value;
}

std::string Allowed(const Parameter& parameter) {
  switch (parameter.kind) {
    case Kind::Flag: return "yes or no";
    case Kind::Choice: return JoinedWords(parameter.choices);
    case Kind::Number: return parameter.limits.Text();
    case Kind::List:
      if (parameter.length != 0) return fmt::format("{} numbers, each {}", parameter.length, parameter.limits.Text());
      break;
    case Kind::PerGroup:
      if (parameter.spreads) return fmt::format("{}, or a list of such, one for each group", parameter.limits.Text());
      break;
  }
  return fmt::format("a list like 1,2,3, each entry {}", parameter.limits.Text());
}

}  // namespace planner
