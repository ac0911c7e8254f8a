#include "solve/make_inputs.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>

#include "model/problem.h"

namespace planner {
namespace {

constexpr int maxGroups = 10000;

/// A count of groups and the input that gives it.
struct GroupCount {
  std::size_t count = 0;
  std::string input = {};

  void Give(std::size_t given, Name name) {
    const std::string text(name.Text());
    if (count == 0) {
      count = given;
      input = text;
    }
    if (given == count) return;
    throw InputError({.code = Code::GroupsDisagree, .inputs = {text, input}, .values = {Figure(given), Figure(count)}});
  }

  static double Figure(std::size_t groups) { return static_cast<double>(groups); }
};

/// A number of groups that the inputs give, kept within what can be counted; 0 where it is no whole number.
std::size_t Counted(double groups) {
  constexpr double largest = 1e9;
  return groups == std::floor(groups) ? static_cast<std::size_t>(std::clamp(groups, 0.0, largest)) : 0;
}

/// The cells of crossed factors.
std::size_t CellsOf(const Numbers& levels) {
  double cells = 1;
  for (double level : levels) cells *= level;
  return Counted(cells);
}

/// What is given besides lists with a number for each group.
void GiveByOthers(GroupCount& groups, const Inputs& inputs) {
  if (inputs.Has("groups")) groups.Give(static_cast<std::size_t>(inputs.Number("groups")), "groups");
  if (inputs.Has("levels")) groups.Give(CellsOf(inputs.List("levels")), "levels");
  if (!inputs.Has("measurements") || !inputs.Has("means")) return;
  // A table of means has a row for each group. One that is no table is left to the conditions of the test.
  const std::size_t rows = Counted(GroupCount::Figure(inputs.List("means").size()) / inputs.Number("measurements"));
  if (rows > 0) groups.Give(rows, "means");
}

int CountGroups(const Test& test, const Inputs& inputs) {
  if (test.groups != groupsFromInputs) return test.groups;
  const Parameter* count = FindParameter(test, Name("groups"));
  const std::size_t fewest = count && count->limits.low <= 1 ? 1 : 2;
  GroupCount groups;
  for (const Parameter& parameter : test.parameters) {
    const Name name = parameter.name;
    if (!inputs.Has(name)) continue;
    if (parameter.kind == Kind::PerGroup) {
      const std::size_t entries = inputs.List(name).size();
      if (!(parameter.spreads && entries == 1)) groups.Give(entries, name);
    }
  }
  GiveByOthers(groups, inputs);
  if (groups.count == 0 && fewest == 1) return 1;
  if (groups.count == 0) throw InputError({.code = Code::GroupsUnknown, .inputs = {"groups"}});
  if (groups.count < fewest) throw InputError({.code = Code::TooFewGroups, .inputs = {groups.input}});
  if (groups.count > maxGroups) {
    throw InputError({.code = Code::TooManyGroups,
                      .inputs = {groups.input},
                      .values = {GroupCount::Figure(groups.count), double{maxGroups}}});
  }
  return static_cast<int>(groups.count);
}

void Spread(const Test& test, Inputs& inputs) {
  const auto count = static_cast<std::size_t>(inputs.Groups());
  for (const Parameter& parameter : test.parameters) {
    if (parameter.kind != Kind::PerGroup || !inputs.Has(parameter.name)) continue;
    const Numbers& numbers = inputs.List(parameter.name);
    if (parameter.spreads && numbers.size() == 1) inputs.SetList(parameter.name, Numbers(count, numbers.front()));
    const std::size_t entries = inputs.List(parameter.name).size();
    if (entries == count) continue;
    throw InputError({.code = Code::WrongLength,
                      .inputs = {std::string(parameter.name.Text())},
                      .values = {GroupCount::Figure(entries), GroupCount::Figure(count)}});
  }
}

}  // namespace

Inputs MakeInputs(const Test& test, const InputValues& values, StopRequest* stop) {
  Inputs inputs;
  inputs.SetStop(stop);
  for (const Parameter& parameter : test.parameters) {
    if (parameter.fallback) inputs.SetValue(parameter, *parameter.fallback);
  }
  for (const auto& [name, value] : values) inputs.SetValue(*FindParameter(test, name), value);
  inputs.SetGroups(CountGroups(test, inputs));
  Spread(test, inputs);
  return inputs;
}

}  // namespace planner
