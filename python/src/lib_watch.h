#ifndef KELPOWER_PYTHON_LIB_WATCH_H
#define KELPOWER_PYTHON_LIB_WATCH_H

#define PY_SSIZE_T_CLEAN
#include <Python.h>

#include <chrono>
#include <cstdint>

#include "kelpower.h"

namespace kelpower_python {

/// Finds the thread in which Python runs signal handlers. Called once, when the module is made; false where Python has
/// an error set.
bool FindMainThread();

/// Watches over the calls that one loop over array elements makes. A call that takes long lets other threads run. In the
/// main thread signals are looked for about every 50 ms; where their handler raises, as that of Ctrl-C does, the loop
/// is to end. A loop cannot raise by itself, so the exception is handed to the interpreter, which raises it as soon as
/// the ufunc returns.
class Watch final : public StopRequest {
public:
  Watch() = default;
  ~Watch() override;
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;

  /// Asked by the library within a call.
  bool ShouldStop() override;

  /// Asked before each element; true when no more are to be computed.
  bool HasEnded();

  /// Lets the interpreter raise MemoryError in this thread, and ends the loop.
  void RunOutOfMemory();

private:
  using Clock = std::chrono::steady_clock;

  void LookAtClock();
  void LetOthersRun();
  void LookForSignals();

  template <class Action>
  void WithInterpreter(Action action);

  Clock::time_point begin_{};
  PyThreadState* released_ = nullptr;  // of a thread that held the interpreter when the loop began
  std::uint32_t questions_ = 0;
  std::uint32_t questionsPerClock_ = 1;
  bool letsOthersRun_ = false;
  bool hasEnded_ = false;
};

}  // namespace kelpower_python

#endif
