#ifndef KELPOWER_PLANNER_MODEL_VALUE_H
#define KELPOWER_PLANNER_MODEL_VALUE_H

#include <map>
#include <string>
#include <variant>
#include <vector>

namespace planner {

using Numbers = std::vector<double>;

/// What an input can hold: a flag, a number, a list of numbers, or the word of a choice.
using Value = std::variant<bool, double, Numbers, std::string>;

/// The values of a question by the names of their inputs, as a front end hands them over.
using InputValues = std::map<std::string, Value>;

}  // namespace planner

#endif
