#include "planner/inputs.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "planner/error.h"
#include "planner/test.h"

namespace planner {
namespace {

constexpr int maxGroups = 10000;

/// A count of groups and the option that tells it.
struct GroupCount {
  std::size_t count = 0;
  std::string option;

  void Tell(std::size_t told, const std::string& name) {
    if (count == 0) {
      count = told;
      option = name;
    }
    if (told == count) return;
    throw InputError(fmt::format("--{} tells {} groups, but --{} tells {}.", name, told, option, count));
  }
};

int CountGroups(const Test& test, const Given& values) {
  if (test.groups != groupsFromInputs) return test.groups;
  GroupCount groups;
  for (const Parameter& parameter : test.parameters) {
    const auto found = values.find(parameter.name);
    if (found == values.end()) continue;
    if (parameter.kind == Kind::PerGroup) {
      const std::size_t entries = std::get<Numbers>(found->second).size();
      if (!(parameter.spreads && entries == 1)) groups.Tell(entries, parameter.name);
    }
    if (parameter.name == "groups") groups.Tell(static_cast<std::size_t>(std::get<double>(found->second)), "groups");
  }
  if (groups.count == 0) throw InputError("The number of groups is not known: give --groups.");
  if (groups.count < 2) throw InputError(fmt::format("--{} tells 1 group, but must tell at least 2.", groups.option));
  if (groups.count > maxGroups) {
    throw InputError(
        fmt::format("--{} tells {} groups, but at most {} are allowed.", groups.option, groups.count, maxGroups));
  }
  return static_cast<int>(groups.count);
}

void Spread(const Test& test, Given& values, int groups) {
  const auto count = static_cast<std::size_t>(groups);
  for (const Parameter& parameter : test.parameters) {
    const auto found = values.find(parameter.name);
    if (parameter.kind != Kind::PerGroup || found == values.end()) continue;
    Numbers& numbers = std::get<Numbers>(found->second);
    // Not by assign, which may not be given a reference into its own vector.
    if (parameter.spreads && numbers.size() == 1) numbers = Numbers(count, numbers.front());
    if (numbers.size() == count) continue;
    const char* entries = numbers.size() == 1 ? "entry" : "entries";
    throw InputError(
        fmt::format("--{} has {} {}, but there are {} groups.", parameter.name, numbers.size(), entries, groups));
  }
}

}  // namespace

Inputs::Inputs(const Test& test, const Given& given, StopRequest* stop) : test_(test), values_(given), stop_(stop) {
  for (const Parameter& parameter : test.parameters) {
    if (parameter.fallback) values_.emplace(parameter.name, *parameter.fallback);
  }
  groups_ = CountGroups(test, values_);
  Spread(test, values_, groups_);
}

bool Inputs::Has(const std::string& name) const { return values_.count(name) != 0; }

const Value& Inputs::At(const std::string& name) const { return values_.at(name); }

void Inputs::Set(const std::string& name, Value value) { values_[name] = std::move(value); }

void Inputs::Erase(const std::string& name) { values_.erase(name); }

double Inputs::Number(const std::string& name) const { return std::get<double>(At(name)); }

bool Inputs::Flag(const std::string& name) const { return std::get<bool>(At(name)); }

int Inputs::Choice(const std::string& name) const {
  const auto& word = std::get<std::string>(At(name));
  const auto& choices = FindParameter(test_, name)->choices;
  return std::find_if(choices.begin(), choices.end(), [&](const auto& choice) { return choice.word == word; })->code;
}

const Numbers& Inputs::List(const std::string& name) const { return std::get<Numbers>(At(name)); }

Numbers Inputs::Weights() const {
  if (Has("n")) return List("n");
  if (Has("ratios")) return List("ratios");
  return Numbers(static_cast<std::size_t>(groups_), 1.0);
}

}  // namespace planner
