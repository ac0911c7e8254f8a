#ifndef KELPOWER_PYTHON_INTERRUPTS_H
#define KELPOWER_PYTHON_INTERRUPTS_H

#include <cstdint>

#include "kelplan.h"
#include "python.h"

namespace kelpython {

/// Ends a computation when a signal's handler raises an exception, such as KeyboardInterrupt, or when a flag is set. The
/// interpreter is asked every 50 milliseconds, however many loops a computation is made of. Its lock may be held; it is then
/// released at the first question, and taken back when this object is destroyed.
class Interrupts {
public:
  /// `flag` may be null; another thread sets it to something other than 0.
  explicit Interrupts(const std::int32_t* flag = nullptr) : flag_(flag) {}
  ~Interrupts();
  Interrupts(const Interrupts&) = delete;
  Interrupts& operator=(const Interrupts&) = delete;

  bool ShouldStop();
  kelplan_options Options();

  /// With the lock held: raises the exception that ended the computation. Gives whether there is one.
  bool Raise();
  /// Has the main thread raise it soon, for where nothing can be raised. Until then its computations end at once.
  void RaiseLater();

private:
  bool AskInterpreter();

  const std::int32_t* flag_;
  PyThreadState* released_ = nullptr;                     // of this thread, which gets the lock back in the end
  PyObject* exception_[3] = {nullptr, nullptr, nullptr};  // its type, value and traceback
};

}  // namespace kelpython

#endif
