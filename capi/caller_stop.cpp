#include "caller_stop.h"

#include <cstddef>

namespace kelplan {

CallerStop::CallerStop(const kelplan_options* options) {
  constexpr std::size_t needed = offsetof(kelplan_options, payload) + sizeof(void*);
  if (!options || options->size < needed) return;
  shouldStop_ = options->should_stop;
  payload_ = options->payload;
}

bool CallerStop::ShouldStop() {
  if (isStopped_ || !shouldStop_) return isStopped_;
  const Clock::time_point now = Clock::now();
  if (wasAsked_ && now - last_ < std::chrono::milliseconds(1)) return false;
  wasAsked_ = true;
  isStopped_ = shouldStop_(payload_) != 0;
  last_ = Clock::now();
  return isStopped_;
}

}  // namespace kelplan
