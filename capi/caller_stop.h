#ifndef KELPOWER_CAPI_CALLER_STOP_H
#define KELPOWER_CAPI_CALLER_STOP_H

#include <chrono>

#include "kelplan.h"
#include "model/stop_request.h"

namespace kelplan {

/// Asks the caller whether to stop, at once and then every millisecond.
class CallerStop : public planner::StopRequest {
public:
  /// `options` may be null, or shorter than this header's.
  explicit CallerStop(const kelplan_options* options);

  /// Whether there is anyone to ask.
  bool IsAsked() const { return shouldStop_ != nullptr; }

  bool ShouldStop() override;

private:
  using Clock = std::chrono::steady_clock;

  int (*shouldStop_)(void*) = nullptr;
  void* payload_ = nullptr;
  bool isStopped_ = false;
  bool wasAsked_ = false;
  Clock::time_point last_;
};

}  // namespace kelplan

#endif
