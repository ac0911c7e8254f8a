#include "checks.h"

#include <fmt/format.h>

#include <algorithm>

#include "planner/error.h"

namespace planner {

void CheckValues(const Test& test, const Given& given) {
  for (const auto& [name, value] : given) {
    const Parameter* parameter = FindParameter(test, name);
    if (!parameter) throw InputError(fmt::format("--{} is not an option of {}.", name, test.name));
    Check(*parameter, value);
  }
}

void CheckConditions(const Test& test, const Inputs& inputs) {
  if (const Condition* failing = FirstFailing(test.conditions, inputs)) throw InputError(failing->sentence);
}

const Condition* FirstFailing(const std::vector<Condition>& conditions, const Inputs& inputs) {
  for (const Condition& condition : conditions) {
    const auto has = [&](const std::string& name) { return inputs.Has(name); };
    if (!std::all_of(condition.about.begin(), condition.about.end(), has)) continue;
    if (!condition.holds(inputs)) return &condition;
  }
  return nullptr;
}

}  // namespace planner
