#pragma once

#include "planner/inputs.h"
#include "planner/test.h"

namespace planner {

/// Throws an InputError unless every value is one of the test's parameters and allowed.
void CheckValues(const Test& test, const Given& given);

/// Throws an InputError when a condition of the test fails.
void CheckConditions(const Test& test, const Inputs& inputs);

/// The first condition that fails, or null. Conditions about what has no value hold.
const Condition* FirstFailing(const std::vector<Condition>& conditions, const Inputs& inputs);

}  // namespace planner
