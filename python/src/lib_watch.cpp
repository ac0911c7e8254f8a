#include "lib_watch.h"

#include <pythread.h>

#include <atomic>
#include <memory>

namespace kelpower_python {
namespace {

constexpr std::chrono::milliseconds timeBetweenSignals{50};

// A call of this length lets other threads run, although its thread may hold the interpreter.
constexpr std::chrono::milliseconds timeAlone{2};

// The clock takes about as long as ten questions. More of them between two looks would gain nothing.
constexpr std::uint32_t mostQuestionsPerClock = 64;

unsigned long mainThread = 0;

// When the main thread last looked for signals. Kept between loops, because a long computation can be many short ones.
std::atomic<std::int64_t> lastSignals{0};

// Whether the exception of a signal handler waits to be raised. Until then, loops of the main thread end at once.
std::atomic<bool> waitsToBeRaised{false};

bool IsMainThread() { return PyThread_get_thread_ident() == mainThread; }

struct Raised {
  PyObject* type = nullptr;
  PyObject* value = nullptr;
  PyObject* traceback = nullptr;
};

int RaiseAgain(void* argument) {
  const std::unique_ptr<Raised> raised(static_cast<Raised*>(argument));
  waitsToBeRaised = false;
  PyErr_Restore(raised->type, raised->value, raised->traceback);
  return -1;
}

// Hands the exception that is set to the interpreter of the main thread. It stays set where that has no room.
void RaiseLater() {
  auto* const raised = new (std::nothrow) Raised;
  if (!raised) return;
  PyErr_Fetch(&raised->type, &raised->value, &raised->traceback);
  waitsToBeRaised = true;
  if (Py_AddPendingCall(RaiseAgain, raised) != 0) RaiseAgain(raised);
}

}  // namespace

bool FindMainThread() {
  PyObject* const threading = PyImport_ImportModule("threading");
  if (!threading) return false;
  PyObject* const thread = PyObject_CallMethod(threading, "main_thread", nullptr);
  Py_DECREF(threading);
  if (!thread) return false;
  PyObject* const ident = PyObject_GetAttrString(thread, "ident");
  Py_DECREF(thread);
  if (!ident) return false;
  mainThread = PyLong_AsUnsignedLong(ident);
  Py_DECREF(ident);
  return !PyErr_Occurred();
}

Watch::~Watch() {
  if (released_) PyEval_RestoreThread(released_);
}

bool Watch::ShouldStop() {
  if (!hasEnded_ && ++questions_ >= questionsPerClock_) LookAtClock();
  return hasEnded_;
}

bool Watch::HasEnded() {
  if (!hasEnded_ && waitsToBeRaised.load(std::memory_order_relaxed) && IsMainThread()) hasEnded_ = true;
  return ShouldStop();
}

void Watch::RunOutOfMemory() {
  hasEnded_ = true;
  WithInterpreter([] { PyThreadState_SetAsyncExc(PyThread_get_thread_ident(), PyExc_MemoryError); });
}

void Watch::LookAtClock() {
  const Clock::time_point now = Clock::now();
  if (begin_ == Clock::time_point{}) begin_ = now;
  questions_ = 0;
  if (questionsPerClock_ < mostQuestionsPerClock) questionsPerClock_ *= 2;
  if (!letsOthersRun_ && now - begin_ > timeAlone) LetOthersRun();
  if (!IsMainThread()) return;
  const Clock::duration last{lastSignals.load(std::memory_order_relaxed)};
  if (now.time_since_epoch() - last < timeBetweenSignals) return;
  lastSignals.store(now.time_since_epoch().count(), std::memory_order_relaxed);
  LookForSignals();
}

// NumPy keeps the interpreter in loops over few elements, and releases it in others.
void Watch::LetOthersRun() {
  letsOthersRun_ = true;
  const PyGILState_STATE state = PyGILState_Ensure();
  PyGILState_Release(state);
  if (state == PyGILState_LOCKED) released_ = PyEval_SaveThread();
}

template <class Action>
void Watch::WithInterpreter(Action action) {
  if (released_) {
    PyEval_RestoreThread(released_);
    action();
    released_ = PyEval_SaveThread();
    return;
  }
  const PyGILState_STATE state = PyGILState_Ensure();
  action();
  PyGILState_Release(state);
}

void Watch::LookForSignals() {
  WithInterpreter([this] {
    if (PyErr_CheckSignals() == 0) return;
    RaiseLater();
    hasEnded_ = true;
  });
}

}  // namespace kelpower_python
