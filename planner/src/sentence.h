#pragma once

#include <functional>
#include <string>

namespace planner {

/// The text with each `{name}` replaced by what `lookUp` gives for the name, and each `{name?yes:no}` by the one or the
/// other as `holds` says of the name. Replacements are not expanded again.
std::string Expand(const std::string& text, const std::function<std::string(const std::string&)>& lookUp,
                   const std::function<bool(const std::string&)>& holds);

}  // namespace planner
