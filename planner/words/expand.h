#ifndef KELPOWER_PLANNER_WORDS_EXPAND_H
#define KELPOWER_PLANNER_WORDS_EXPAND_H

#include <functional>
#include <string>
#include <string_view>

namespace planner {

/// The text with each `{name}` replaced by what `lookUp` gives for the name. Of `{name?yes:no}` the first text stands
/// where `holds` is true of the name, the second otherwise. Replacements are not expanded again.
std::string Expand(const std::string& text, const std::function<std::string(std::string_view)>& lookUp,
                   const std::function<bool(std::string_view)>& holds);

}  // namespace planner

#endif
