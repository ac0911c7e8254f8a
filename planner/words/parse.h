#ifndef KELPOWER_PLANNER_WORDS_PARSE_H
#define KELPOWER_PLANNER_WORDS_PARSE_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/parameter.h"

namespace planner {

/// "a number above 0", "a whole number from 2 to 10000"
std::string Text(const Limits& limits);

/// What the parameter takes, for help and messages: "a number above 0", "bonferroni, sidak or none".
std::string Allowed(const Parameter& parameter);

/// "true" or "false", as other programs may write them too.
std::optional<bool> ParseFlag(std::string_view text);

/// Throws the InputError that says what is allowed in place of `text`, and what was likely meant by it.
[[noreturn]] void RejectText(const Parameter& parameter, std::string_view text);

/// The value that `text` spells; throws an InputError when it spells none or one that is not allowed.
Value Parse(const Parameter& parameter, std::string_view text);

/// The values that `text` spells, one or several alternatives. For a number these are a list, `0.2,0.5`, of numbers and
/// ranges, `20:100:20`, from one end to the other by steps; for numbers of the groups of which one may stand for all, a
/// range. Throws an InputError as Parse does.
std::vector<Value> ParseAlternatives(const Parameter& parameter, std::string_view text);

}  // namespace planner

#endif
