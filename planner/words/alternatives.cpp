#include "words/alternatives.h"

#include <cmath>
#include <string_view>

#include "model/problem.h"
#include "words/numbers.h"
#include "words/parse.h"

namespace planner {
namespace {

std::vector<std::string_view> Split(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  for (;;) {
    const std::size_t at = text.find(separator);
    parts.push_back(text.substr(0, at));
    if (at == std::string_view::npos) return parts;
    text.remove_prefix(at + 1);
  }
}

/// "20:100:20". Each number counts from the first, so that no rounding adds up.
std::vector<Value> Sequence(const Parameter& parameter, const std::string& text) {
  constexpr double most = 1000;
  constexpr double rounding = 1e-9;
  const std::vector<std::string_view> parts = Split(text, ':');
  double from = 0;
  double to = 0;
  double step = 0;
  const bool isSequence = parts.size() == 3 && ParseNumber(parts[0], from) && ParseNumber(parts[1], to) &&
                          ParseNumber(parts[2], step) && step > 0 && from <= to && (to - from) / step < most;
  if (!isSequence) return {Parse(parameter, text)};
  std::vector<Value> values;
  for (double i = 0; i <= (to - from) / step + rounding; ++i) {
    values.push_back(Parse(parameter, Shortest(std::round((from + i * step) * 1e12) / 1e12)));
  }
  return values;
}

}  // namespace

std::vector<Value> ParseAlternatives(const Parameter& parameter, const std::vector<std::string>& texts) {
  std::vector<Value> values;
  for (const std::string& text : texts) {
    if (parameter.kind != Kind::Number) {
      values.push_back(Parse(parameter, text));
    } else if (text.find(':') != std::string::npos) {
      for (Value& value : Sequence(parameter, text)) values.push_back(std::move(value));
    } else {
      for (std::string_view part : Split(text, ',')) values.push_back(Parse(parameter, part));
    }
  }
  return values;
}

}  // namespace planner
