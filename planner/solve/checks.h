#ifndef KELPOWER_PLANNER_SOLVE_CHECKS_H
#define KELPOWER_PLANNER_SOLVE_CHECKS_H

#include "model/inputs.h"
#include "model/problem.h"
#include "model/test.h"

namespace planner {

/// Throws an InputError unless every value is one of the test's parameters and allowed.
void CheckValues(const Test& test, const InputValues& values);

/// Throws an InputError when a condition of the test fails.
void CheckConditions(const Test& test, const Inputs& inputs);

/// The conditions whose inputs all have a value. The others count as met.
std::vector<const Condition*> Applicable(const std::vector<Condition>& conditions, const Inputs& inputs);

/// The first condition that fails, or null.
const Condition* FirstFailing(const std::vector<const Condition*>& conditions, const Inputs& inputs);

/// The problem that a failing condition is.
Problem ProblemOf(const Condition& condition, Code code);

}  // namespace planner

#endif
