#include "words/parse.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "format/format.h"
#include "model/problem.h"
#include "words/numbers.h"

namespace planner {
namespace {

std::optional<Value> ReadNumber(std::string_view text) {
  double number = 0;
  if (!ParseNumber(text, number)) return std::nullopt;
  return number;
}

/// "000" or "050": what follows the comma of a thousand, and no entry of a list.
bool IsEndOfThousands(std::string_view text) {
  return text.size() == 3 && text.front() == '0' && text.find_first_not_of("0123456789") == std::string_view::npos;
}

std::optional<Value> ReadNumbers(std::string_view text) {
  Numbers numbers;
  for (;;) {
    const std::size_t comma = text.find(',');
    double number = 0;
    if (!ParseNumber(text.substr(0, comma), number)) return std::nullopt;
    if (!numbers.empty() && IsEndOfThousands(text.substr(0, comma))) return std::nullopt;
    numbers.push_back(number);
    if (comma == std::string_view::npos) return numbers;
    text.remove_prefix(comma + 1);
  }
}

std::optional<Value> Read(const Parameter& parameter, std::string_view text) {
  if (parameter.kind == Kind::Flag) return ParseFlag(text);
  if (parameter.kind == Kind::Number) return ReadNumber(text);
  if (parameter.IsList()) return ReadNumbers(text);
  return std::string(text);
}

}  // namespace

std::optional<bool> ParseFlag(std::string_view text) {
  for (const char* yes : {"true", "yes", "TRUE"}) {
    if (text == yes) return true;
  }
  for (const char* no : {"false", "no", "FALSE"}) {
    if (text == no) return false;
  }
  return std::nullopt;
}

std::string Text(const Limits& limits) {
  const auto& [low, high, lowAllowed, highAllowed, whole] = limits;
  const std::string noun = whole ? "whole number" : "number";
  const bool hasLow = std::isfinite(low);
  const bool hasHigh = std::isfinite(high);
  if (hasLow && hasHigh && lowAllowed && highAllowed) {
    return Formatted("a {} from {} to {}", noun, Shortest(low), Shortest(high));
  }
  if (hasLow && hasHigh && !lowAllowed && !highAllowed) {
    return Formatted("a {} between {} and {}, neither included", noun, Shortest(low), Shortest(high));
  }
  std::string text = "a " + noun;
  if (hasLow) text += (lowAllowed ? " of at least " : " above ") + Shortest(low);
  if (hasLow && hasHigh) text += " and";
  if (hasHigh) text += (highAllowed ? " of at most " : " below ") + Shortest(high);
  return text;
}

namespace {

/// Two numbers of their kind, for an example.
const char* TwoLike(const Limits& limits) {
  if (limits.high <= 1) return "0.3,0.5";
  return limits.whole ? "1,2" : "52,47";
}

}  // namespace

std::string Allowed(const Parameter& parameter) {
  const std::string each = Text(parameter.limits);
  std::vector<std::string> words;
  for (const Choice& choice : parameter.choices) words.push_back(choice.word);
  switch (parameter.kind) {
    case Kind::Flag: return "true or false";
    case Kind::Choice: return Joined(words, " or ");
    case Kind::Number: return each;
    case Kind::List:
      if (parameter.length == 2) {
        return Formatted("two numbers like {}{}", TwoLike(parameter.limits),
                         each == "a number" ? "" : ", each " + each);
      }
      if (parameter.length != 0) return Formatted("{} numbers, each {}", parameter.length, each);
      if (parameter.spreads) return Formatted("{}, or a list of such", each);
      break;
    case Kind::PerGroup:
      if (parameter.spreads) return Formatted("{}, or a list of such, one for each group", each);
      break;
  }
  return Formatted("a list like 1,2,3, each entry {}", each);
}

namespace {

std::string Without(std::string text, char letter) {
  text.erase(std::remove(text.begin(), text.end(), letter), text.end());
  return text;
}

bool IsAllowedNumber(const Parameter& parameter, const std::string& text) {
  double number = 0;
  return ParseNumber(text, number) && parameter.limits.Allow(number);
}

/// A percentage as the share that it is: "80%" or "80" as 0.8.
std::string AsShare(std::string text) {
  constexpr double smallestPercent = 2;  // less may as well be a slip of the point
  constexpr double wholePercent = 100;
  if (!text.empty() && text.back() == '%') text.pop_back();
  double number = 0;
  if (!ParseNumber(text, number) || !(number >= smallestPercent) || !(number < wholePercent)) return "";
  return Shortest(number / wholePercent);
}

/// What was likely meant by a text that is not allowed: a decimal comma, thousands set off by commas, a percentage.
/// Empty where nothing allowed comes to mind.
std::string LikelyMeant(const Parameter& parameter, std::string_view typed) {
  const std::string text(typed);
  if (parameter.kind == Kind::Choice || parameter.kind == Kind::Flag) return "";
  std::string point = text;
  std::replace(point.begin(), point.end(), ',', '.');
  const bool isOneComma = std::count(text.begin(), text.end(), ',') == 1;
  const bool isThousands = isOneComma && text.size() > 4 && text[text.size() - 4] == ',' && text.front() != '0';
  if (isThousands && IsAllowedNumber(parameter, Without(text, ','))) return Without(text, ',');
  if (isOneComma && !parameter.IsList() && IsAllowedNumber(parameter, point)) return point;
  const bool isShare = parameter.limits.high <= 1 && parameter.limits.low >= 0;
  if (const std::string share = AsShare(text); isShare && IsAllowedNumber(parameter, share)) return share;
  return "";
}

[[noreturn]] void Reject(const Parameter& parameter, std::string_view text, Value value) {
  const std::string meant = LikelyMeant(parameter, text);
  throw InputError({.code = Code::NotAllowed,
                    .inputs = {std::string(parameter.name.Text())},
                    .values = {std::move(value)},
                    .allowed = parameter,
                    .words = meant.empty() ? std::vector<std::string>{} : std::vector<std::string>{meant}});
}

}  // namespace

void RejectText(const Parameter& parameter, std::string_view text) {
  Reject(parameter, text, Value(std::string(text)));
}

Value Parse(const Parameter& parameter, std::string_view text) {
  std::optional<Value> value = Read(parameter, text);
  if (!value) RejectText(parameter, text);
  if (!parameter.Allows(*value)) Reject(parameter, text, *std::move(value));
  return *std::move(value);
}

}  // namespace planner
