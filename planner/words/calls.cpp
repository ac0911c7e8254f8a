#include "words/calls.h"

#include <cmath>
#include <vector>

#include "words/json_writer.h"
#include "words/numbers.h"

namespace planner {
namespace {

/// How a language writes calls.
struct Grammar {
  const char* function;  // before the name of a test
  const char* equals;
  const char* yes;
  const char* no;
  const char* list;  // what opens one
  const char* endOfList;
};

constexpr Grammar python = {"kelpower.", "=", "True", "False", "[", "]"};
constexpr Grammar r = {"kp_", " = ", "TRUE", "FALSE", "c(", ")"};

struct GivenInput {
  std::string name;
  const Value& value;
};

std::vector<GivenInput> GivenOf(const Test& test, const InputValues& values) {
  std::vector<GivenInput> given;
  for (const Parameter& parameter : test.parameters) {
    const auto value = values.find(std::string(parameter.name.Text()));
    if (value != values.end()) given.push_back({value->first, value->second});
  }
  return given;
}

/// A negative zero needs its point, or it would be read as an integer, which has none.
std::string Digits(double number) { return number == 0 && std::signbit(number) ? "-0.0" : Shortest(number); }

std::string Entries(const Numbers& numbers, const std::string& separator) {
  std::vector<std::string> entries;
  for (double number : numbers) entries.push_back(Digits(number));
  return Joined(entries, separator, separator);
}

std::string Written(const Grammar& language, const Value& value) {
  if (const auto* flag = std::get_if<bool>(&value)) return *flag ? language.yes : language.no;
  if (const auto* number = std::get_if<double>(&value)) return Digits(*number);
  if (const auto* word = std::get_if<std::string>(&value)) return '"' + *word + '"';
  const auto& numbers = std::get<Numbers>(value);
  if (numbers.size() == 1) return Digits(numbers.front());
  return language.list + Entries(numbers, ", ") + language.endOfList;
}

std::string FunctionCall(const Grammar& language, const Test& test, const std::vector<GivenInput>& given) {
  std::vector<std::string> arguments;
  for (const auto& [name, value] : given) {
    arguments.push_back(Spelt(name, NameStyle::Underscores) + language.equals + Written(language, value));
  }
  return language.function + Spelt(test.name, NameStyle::Underscores) + "(" + Joined(arguments, ", ") + ")";
}

std::string Command(const Test& test, const std::vector<GivenInput>& given) {
  std::string command = "kelpower " + test.name;
  for (const auto& [name, value] : given) {
    if (const auto* flag = std::get_if<bool>(&value)) {
      if (*flag) command += " --" + name;
      continue;
    }
    command += " --" + name + ' ';
    if (const auto* number = std::get_if<double>(&value)) command += Digits(*number);
    if (const auto* word = std::get_if<std::string>(&value)) command += *word;
    if (const auto* numbers = std::get_if<Numbers>(&value)) command += Entries(*numbers, ",");
  }
  return command;
}

}  // namespace

Calls CallsOf(const Test& test, const InputValues& values) {
  const std::vector<GivenInput> given = GivenOf(test, values);
  return {Command(test, given), FunctionCall(python, test, given), FunctionCall(r, test, given)};
}

}  // namespace planner
