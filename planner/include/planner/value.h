#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace planner {

using Numbers = std::vector<double>;

/// What a parameter can hold: a flag, a number, a list of numbers, or the word of a choice.
using Value = std::variant<bool, double, Numbers, std::string>;

/// The finite number that the whole of `text` spells, whatever the locale: digits with an optional sign, decimal point
/// and exponent. False when it spells none or one beyond the range of a double.
bool ParseNumber(std::string_view text, double& number);

/// The shortest digits that read back as the same number.
std::string Shortest(double number);

/// Numbers joined for reading: "10, 12, 15", or in a sentence "10, 12 and 15".
std::string Listed(const Numbers& numbers);
std::string ListedInSentence(const Numbers& numbers);

/// A value for reading: flags as yes and no, choices as their word.
std::string Shown(const Value& value);

}  // namespace planner
