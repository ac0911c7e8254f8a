#ifndef KELPOWER_PYTHON_INTERRUPTS_H
#define KELPOWER_PYTHON_INTERRUPTS_H

#include <atomic>
#include <chrono>
#include <cstdint>

#include "kelplan.h"
#include "python.h"

namespace kelpython {

/// Ends a computation when a signal's handler raises an exception, such as KeyboardInterrupt, or when a flag is set. The
/// interpreter is asked every 50 milliseconds; its lock may be held or not.
class Interrupts {
public:
  /// `flag` may be null; another thread sets it to something other than 0.
  explicit Interrupts(const std::int32_t* flag = nullptr) : flag_(flag), next_(Clock::now() + interval) {}
  ~Interrupts();
  Interrupts(const Interrupts&) = delete;
  Interrupts& operator=(const Interrupts&) = delete;

  bool ShouldStop();
  kelplan_options Options();

  /// With the lock held: raises the exception that ended the computation. Gives whether there is one.
  bool Raise();
  /// Has the main thread raise it soon, for where nothing can be raised.
  void RaiseLater();

private:
  using Clock = std::chrono::steady_clock;
  static constexpr std::chrono::milliseconds interval{50};

  const std::int32_t* flag_;
  Clock::time_point next_;
  PyObject* exception_[3] = {nullptr, nullptr, nullptr};  // its type, value and traceback
};

}  // namespace kelpython

#endif
