#include "words/numbers.h"

#include <fast_float/fast_float.h>

#include <cmath>
#include <iterator>

#include "format/format.h"

namespace planner {
namespace {

std::vector<std::string> Digits(const Numbers& numbers) {
  std::vector<std::string> digits;
  for (double number : numbers) digits.push_back(Shortest(number));
  return digits;
}

bool HasDigitAbove0(std::string_view number) {
  return number.substr(0, number.find_first_of("eE")).find_first_of("123456789") != std::string_view::npos;
}

}  // namespace

bool ParseNumber(std::string_view text, double& number) {
  // from_chars takes no plus sign, and takes words such as "nan" and "inf". The standard library's lacks doubles on
  // some platforms.
  if (!text.empty() && text.front() == '+') {
    text.remove_prefix(1);
    if (!text.empty() && text.front() == '-') return false;
  }
  double parsed = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = fast_float::from_chars(text.data(), end, parsed);
  if (error != std::errc{}) return false;
  if (stop != end) return false;
  if (!std::isfinite(parsed)) return false;
  if (parsed == 0 && HasDigitAbove0(text)) return false;  // too small for a double
  number = parsed;
  return true;
}

void AppendShortest(std::string& text, double number) {
  constexpr double largestPlainWhole = 1e15;
  if (number == std::trunc(number) && std::abs(number) < largestPlainWhole) {
    if (number == 0 && std::signbit(number)) text += '-';
    AppendDigits(text, static_cast<long long>(number));
  } else {
    AppendDigits(text, number);
  }
}

std::string Shortest(double number) {
  std::string text;
  AppendShortest(text, number);
  return text;
}

std::string Joined(const std::vector<std::string>& words, const std::string& last, const std::string& other) {
  std::string text;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (i > 0) text += i + 1 == words.size() ? last : other;
    text += words[i];
  }
  return text;
}

std::string Listed(const Numbers& numbers) { return Joined(Digits(numbers), ", "); }

std::string ListedInSentence(const Numbers& numbers) { return Joined(Digits(numbers), " and "); }

std::string ListedWithSpaces(const Numbers& numbers) { return Joined(Digits(numbers), " ", " "); }

std::string Shown(const Value& value) {
  if (const auto* flag = std::get_if<bool>(&value)) return *flag ? "yes" : "no";
  if (const auto* number = std::get_if<double>(&value)) return Shortest(*number);
  if (const auto* numbers = std::get_if<Numbers>(&value)) return Listed(*numbers);
  return std::get<std::string>(value);
}

}  // namespace planner
