#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "format/format.h"
#include "model/problem.h"
#include "solve/designs.h"
#include "words/numbers.h"
#include "words/parse.h"

namespace planner {
namespace {

/// Of a step: so much may the ends be off by rounding.
constexpr double rounding = 1e-9;

[[noreturn]] void RejectRange(const Parameter& parameter, std::string_view text) {
  throw InputError(
      {.code = Code::RangeUseless, .inputs = {std::string(parameter.name.Text())}, .values = {std::string(text)}});
}

/// The number without the last digit, which the sum of many steps rounds: 0.3 and not 0.30000000000000004.
double Tidy(double number) {
  ParseNumber(Formatted("{:.15g}", number), number);
  return number;
}

Numbers Range(const Parameter& parameter, std::string_view text) {
  std::array<double, 3> parts{};
  std::string_view rest = text;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    const std::size_t colon = rest.find(':');
    if ((colon == std::string_view::npos) != (i + 1 == parts.size())) RejectRange(parameter, text);
    if (!ParseNumber(rest.substr(0, colon), parts[i])) RejectRange(parameter, text);
    if (colon != std::string_view::npos) rest.remove_prefix(colon + 1);
  }
  const auto [from, to, step] = parts;
  const double steps = std::floor((to - from) / step + rounding);
  if (step == 0 || !(steps >= 0)) RejectRange(parameter, text);
  if (!(steps < static_cast<double>(Designs::most))) {
    throw InputError({.code = Code::TooManyDesigns, .values = {static_cast<double>(Designs::most)}});
  }
  Numbers numbers;
  for (double i = 0; i <= steps; ++i) numbers.push_back(Tidy(from + i * step));
  if (std::abs(numbers.back() - to) < rounding * std::abs(step)) numbers.back() = to;
  return numbers;
}

Numbers NumbersOf(const Parameter& parameter, std::string_view text) {
  Numbers all;
  for (std::string_view rest = text;;) {
    const std::size_t comma = rest.find(',');
    const std::string_view item = rest.substr(0, comma);
    if (item.find(':') != std::string_view::npos) {
      const Numbers range = Range(parameter, item);
      all.insert(all.end(), range.begin(), range.end());
    } else {
      double number = 0;
      if (!ParseNumber(item, number)) RejectText(parameter, text);
      all.push_back(number);
    }
    if (comma == std::string_view::npos) break;
    rest.remove_prefix(comma + 1);
  }
  return all;
}

}  // namespace

std::vector<Value> ParseAlternatives(const Parameter& parameter, std::string_view text) {
  const bool isRange = text.find(':') != std::string_view::npos;
  const bool isListed = text.find(',') != std::string_view::npos;
  const bool isNumber = parameter.kind == Kind::Number && (isRange || isListed);
  const bool isOfGroups = parameter.kind == Kind::PerGroup && parameter.spreads && isRange && !isListed;
  if (!isNumber && !isOfGroups) return {Parse(parameter, text)};
  std::vector<Value> values;
  for (double number : NumbersOf(parameter, text)) {
    Value value = isNumber ? Value(number) : Value(Numbers{number});
    if (!parameter.Allows(value)) RejectText(parameter, text);
    values.push_back(std::move(value));
  }
  return values;
}

}  // namespace planner
