#ifndef KELPOWER_PLANNER_WORDS_PARSE_H
#define KELPOWER_PLANNER_WORDS_PARSE_H

#include <string>
#include <string_view>

#include "model/parameter.h"

namespace planner {

/// "a number above 0", "a whole number from 2 to 10000"
std::string Text(const Limits& limits);

/// What the parameter takes, for help and messages: "a number above 0", "bonferroni, sidak or none".
std::string Allowed(const Parameter& parameter);

/// The value that `text` spells; throws an InputError when it spells none or one that is not allowed.
Value Parse(const Parameter& parameter, std::string_view text);

}  // namespace planner

#endif
