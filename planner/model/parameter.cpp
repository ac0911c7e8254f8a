#include "model/parameter.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace planner {
namespace {

Parameter Make(Name name, Kind kind, std::string label, std::string meaning) {
  return {.name = name,
          .kind = kind,
          .label = std::move(label),
          .meaning = std::move(meaning),
          .unit = {},
          .limits = {},
          .rows = {},
          .columns = {},
          .choices = {},
          .aliases = {},
          .fallback = {}};
}

bool AllowsList(const Parameter& parameter, const Numbers& numbers) {
  if (numbers.empty()) return false;
  if (parameter.length != 0 && numbers.size() != parameter.length) return false;
  return std::all_of(numbers.begin(), numbers.end(), [&](double number) { return parameter.limits.Allow(number); });
}

bool AllowsWord(const Parameter& parameter, const std::string& word) {
  return std::any_of(parameter.choices.begin(), parameter.choices.end(),
                     [&](const Choice& choice) { return choice.word == word; });
}

}  // namespace

bool Limits::Allow(double number) const {
  if (!std::isfinite(number)) return false;
  if (whole && number != std::trunc(number)) return false;
  if (lowAllowed ? number < low : number <= low) return false;
  if (highAllowed ? number > high : number >= high) return false;
  return true;
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

Parameter Parameter::As(Role of) const {
  Parameter copy = *this;
  copy.role = of;
  return copy;
}

Parameter Parameter::Rows(Name count) const {
  Parameter copy = *this;
  copy.rows = count;
  return copy;
}

Parameter Parameter::Columns(Name count) const {
  Parameter copy = *this;
  copy.columns = count;
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

bool Parameter::Allows(const Value& value) const {
  const double* number = std::get_if<double>(&value);
  const Numbers* numbers = std::get_if<Numbers>(&value);
  const std::string* word = std::get_if<std::string>(&value);
  if (kind == Kind::Flag) return std::holds_alternative<bool>(value);
  if (kind == Kind::Number) return number && limits.Allow(*number);
  if (kind == Kind::Choice) return word && AllowsWord(*this, *word);
  return numbers && AllowsList(*this, *numbers);
}

Parameter Number(Name name, std::string label, std::string meaning) {
  return Make(name, Kind::Number, std::move(label), std::move(meaning));
}

Parameter Flag(Name name, std::string label, std::string meaning) {
  return Make(name, Kind::Flag, std::move(label), std::move(meaning)).Default(false);
}

Parameter OneOf(Name name, std::string label, std::string meaning, std::vector<Choice> choices) {
  Parameter parameter = Make(name, Kind::Choice, std::move(label), std::move(meaning));
  parameter.choices = std::move(choices);
  return parameter;
}

Parameter List(Name name, std::string label, std::string meaning) {
  return Make(name, Kind::List, std::move(label), std::move(meaning));
}

Parameter PerGroup(Name name, std::string label, std::string meaning) {
  return Make(name, Kind::PerGroup, std::move(label), std::move(meaning));
}

}  // namespace planner
