#ifndef KELPOWER_FRAME_STOP_H
#define KELPOWER_FRAME_STOP_H

#include "frame/function_view.h"

namespace kelpower {

/// Asked between the steps of a long computation; true ends it. The empty view, which is the default, never does.
using Stop = FunctionView<bool()>;

inline bool AnswersStop(Stop stop) { return stop && stop(); }

/// Asks once for each of `steps` steps of a computation, until an answer is true. False for an empty view.
inline bool StopsWithin(Stop stop, double steps) {
  if (!stop) return false;
  for (double step = 0; step < steps; ++step) {
    if (stop()) return true;
  }
  return false;
}

}  // namespace kelpower

#endif
