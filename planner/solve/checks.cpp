#include "solve/checks.h"

#include <algorithm>

namespace planner {

void CheckValues(const Test& test, const InputValues& values) {
  for (const auto& [name, value] : values) {
    const Parameter* parameter = FindParameter(test, name);
    if (!parameter) throw InputError({.code = Code::NotAnInput, .inputs = {name}, .words = {test.name}});
    if (parameter->Allows(value)) continue;
    throw InputError({.code = Code::NotAllowed, .inputs = {name}, .values = {value}, .allowed = *parameter});
  }
}

void CheckConditions(const Test& test, const Inputs& inputs) {
  const Condition* failing = FirstFailing(Applicable(test.conditions, inputs), inputs);
  if (failing) throw InputError(ProblemOf(*failing, Code::ConditionFails));
}

std::vector<const Condition*> Applicable(const std::vector<Condition>& conditions, const Inputs& inputs) {
  std::vector<const Condition*> applicable;
  for (const Condition& condition : conditions) {
    const auto has = [&](Name name) { return inputs.Has(name); };
    if (std::all_of(condition.about.begin(), condition.about.end(), has)) applicable.push_back(&condition);
  }
  return applicable;
}

const Condition* FirstFailing(const std::vector<const Condition*>& conditions, const Inputs& inputs) {
  for (const Condition* condition : conditions) {
    if (!condition->holds(inputs)) return condition;
  }
  return nullptr;
}

Problem ProblemOf(const Condition& condition, Code code) {
  Problem problem{.code = code};
  for (Name name : condition.about) problem.inputs.emplace_back(name.Text());
  problem.condition = condition.code;
  problem.sentence = condition.sentence;
  return problem;
}

}  // namespace planner
