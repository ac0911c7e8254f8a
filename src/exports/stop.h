#ifndef KELPOWER_EXPORTS_STOP_H
#define KELPOWER_EXPORTS_STOP_H

#include "frame/stop.h"
#include "kelpower.h"

namespace kelpower::exports {

/// A caller's StopRequest, which may be null, as the core asks it.
class CallerStop {
public:
  explicit CallerStop(StopRequest* request) : request_(request) {}

  bool operator()() const { return request_->ShouldStop(); }

  /// Holds as long as this object.
  Stop View() const { return request_ != nullptr ? Stop(*this) : Stop(); }

private:
  StopRequest* request_;
};

}  // namespace kelpower::exports

#endif
