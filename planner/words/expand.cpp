#include "words/expand.h"

namespace planner {

std::string Expand(const std::string& text, const std::function<std::string(std::string_view)>& lookUp,
                   const std::function<bool(std::string_view)>& holds) {
  std::string result;
  std::size_t done = 0;
  for (;;) {
    const std::size_t open = text.find('{', done);
    const std::size_t close = text.find('}', open);
    if (open == std::string::npos || close == std::string::npos) return result + text.substr(done);
    result += text.substr(done, open - done);
    const std::string inside = text.substr(open + 1, close - open - 1);
    const std::size_t mark = inside.find('?');
    if (mark == std::string::npos) {
      result += lookUp(inside);
    } else {
      const std::size_t colon = inside.find(':', mark);
      const bool chosen = holds(inside.substr(0, mark));
      if (chosen) result += inside.substr(mark + 1, colon - mark - 1);
      if (!chosen && colon != std::string::npos) result += inside.substr(colon + 1);
    }
    done = close + 1;
  }
}

}  // namespace planner
