// Here alone, so that this file has the code.
#define FMT_HEADER_ONLY
#include "format/format.h"

#include <fmt/format.h>

#include <iterator>

namespace planner {

std::string FormattedValues(fmt::string_view pattern, fmt::format_args values) { return fmt::vformat(pattern, values); }

void AppendDigits(std::string& text, double number) { fmt::format_to(std::back_inserter(text), "{}", number); }

void AppendDigits(std::string& text, long long number) { fmt::format_to(std::back_inserter(text), "{}", number); }

}  // namespace planner
