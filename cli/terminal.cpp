#include "terminal.h"

#include <unistd.h>

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
