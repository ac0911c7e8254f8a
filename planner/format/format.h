#ifndef KELPOWER_PLANNER_FORMAT_FORMAT_H
#define KELPOWER_PLANNER_FORMAT_FORMAT_H

#include <fmt/core.h>

#include <string>

namespace planner {

/// The text that a pattern known to the compiler makes of the values, with their types forgotten.
std::string FormattedValues(fmt::string_view pattern, fmt::format_args values);

/// The pattern with the values in its braces, as std::format does it. The code of {fmt} is compiled once, behind this
/// door, instead of in every file that makes a text: there it takes most of the compiler's time.
template <typename... Values>
std::string Formatted(fmt::format_string<Values...> pattern, Values&&... values) {
  return FormattedValues(pattern, fmt::make_format_args(values...));
}

/// Appends the shortest digits that read back as the same number.
void AppendDigits(std::string& text, double number);
void AppendDigits(std::string& text, long long number);

}  // namespace planner

#endif
