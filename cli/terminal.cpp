#include "terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace {

std::string_view Environment(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

}  // namespace

planner::Paint PaintFor(std::FILE* stream) {
  if (isatty(fileno(stream)) == 0) return {};
  if (!Environment("NO_COLOR").empty()) return {};
  if (Environment("TERM") == "dumb") return {};
  return {"\033[1m", "\033[1;36m", "\033[0m"};
}

TerminalSize SizeOf(std::FILE* stream) {
  constexpr TerminalSize usual{79, 24};
  constexpr TerminalSize least{40, 12};  // less leaves no room for a chart
  winsize size{};
  if (ioctl(fileno(stream), TIOCGWINSZ, &size) != 0 || size.ws_col == 0 || size.ws_row == 0) return usual;
  return {std::max(size.ws_col - 1, least.columns), std::max(size.ws_row - 1, least.lines)};
}
