#ifndef KELPOWER_PLANNER_WORDS_NUMBERS_H
#define KELPOWER_PLANNER_WORDS_NUMBERS_H

#include <string>
#include <string_view>
#include <vector>

#include "model/value.h"

namespace planner {

/// The finite number that the whole of `text` spells, whatever the locale: digits with an optional sign, decimal point
/// and exponent. False when it spells none or one beyond the range of a double.
bool ParseNumber(std::string_view text, double& number);

/// The shortest digits that read back as the same number.
std::string Shortest(double number);
void AppendShortest(std::string& text, double number);

/// The words joined: "a, b, c" with ", " for both separators, "a, b or c" with " or " for the last one.
std::string Joined(const std::vector<std::string>& words, const std::string& last, const std::string& other = ", ");

/// Numbers joined for reading: "10, 12, 15", or in a sentence "10, 12 and 15".
std::string Listed(const Numbers& numbers);
std::string ListedInSentence(const Numbers& numbers);

/// Numbers for a field of a table: "10 12 15".
std::string ListedWithSpaces(const Numbers& numbers);

/// A value for reading: flags as yes and no, choices as their word.
std::string Shown(const Value& value);

}  // namespace planner

#endif
