#pragma once

#include <string>
#include <vector>

#include "planner/inputs.h"
#include "planner/test.h"

namespace planner {

using Names = std::vector<std::string>;

bool Contains(const Names& names, const std::string& name);

/// Whether the route takes the parameter, as a need or besides.
bool Takes(const Route& route, const std::string& name);

/// The names of what was given, without flags that are not set.
Names GivenNames(const Given& given);

/// What is asked: the question of the one asking parameter that is given, else the power.
Question AskedQuestion(const Names& given);

/// The route of the question that takes all that is given and needs nothing more. Throws an InputError that says what
/// does not go together or what is missing.
const Route& ChooseRoute(const Test& test, Question question, const Names& given);

}  // namespace planner
