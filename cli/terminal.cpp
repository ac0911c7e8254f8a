#include "terminal.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace {

std::string_view Environment(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

}  // namespace

planner::Highlights HighlightsFor(std::FILE* stream) {
  if (!IsTerminal(stream)) return {};
  if (!Environment("NO_COLOR").empty()) return {};
  if (Environment("TERM") == "dumb") return {};
  if (!ShowsColors(stream)) return {};
  return {"\033[1m", "\033[1;36m", "\033[0m"};
}

TerminalSize SizeOf(std::FILE* stream) {
  constexpr TerminalSize usual{79, 24};
  constexpr TerminalSize least{40, 12};  // less leaves no room for a chart
  const TerminalSize window = WindowOf(stream);
  if (window.columns == 0 || window.lines == 0) return usual;
  return {std::max(window.columns - 1, least.columns), std::max(window.lines - 1, least.lines)};
}
