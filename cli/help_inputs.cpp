#include "help_inputs.h"

#include "format/format.h"
#include "help.h"
#include "help_usage.h"
#include "words/expand.h"
#include "words/numbers.h"
#include "words/parse.h"

using namespace planner;

namespace {

/// What the option takes; of two groups a list has two entries.
std::string AllowedIn(const Test& test, Parameter parameter) {
  if (parameter.kind == Kind::PerGroup && !parameter.spreads && test.groups == 2) {
    parameter.kind = Kind::List;
    parameter.length = 2;
  }
  return Allowed(parameter);
}

}  // namespace

std::vector<std::string> NamesOf(const Parameter& parameter) {
  std::vector<std::string> names{std::string(parameter.name.Text())};
  for (const std::string& alias : parameter.aliases) {
    // What answers call a target is understood as an option too.
    if (alias != Formatted("target-{}", parameter.name.Text())) names.push_back(alias);
  }
  return names;
}

std::string_view KindOfValue(const Parameter& parameter) {
  switch (parameter.kind) {
    case Kind::Flag: return "";
    case Kind::Number: return "NUMBER";
    case Kind::Choice: return "WORD";
    case Kind::List:
    case Kind::PerGroup: return "LIST";
  }
  return "";
}

std::string MeaningOf(const Parameter& parameter) {
  const std::string meaning = Expand(parameter.meaning, OptionOf, [](std::string_view) { return false; });
  return parameter.unit.empty() ? meaning : meaning + ", in " + parameter.unit;
}

std::string RangeOf(const Test& test, const Parameter& parameter) {
  if (parameter.kind == Kind::Flag) return "";
  const std::string text = AllowedIn(test, parameter);
  return parameter.fallback ? text + "; default " + Shown(*parameter.fallback) : text;
}

std::string CallOfTable(const Test& test) {
  std::string call = FirstExample(test).arguments;
  const std::string option = " --power ";
  const std::size_t value = call.find(option) + option.size();
  return call.replace(value, call.find(' ', value) - value, "0.8,0.9");
}
