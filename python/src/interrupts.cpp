#include "interrupts.h"

#include <chrono>

namespace kelpython {
namespace {

using Clock = std::chrono::steady_clock;
constexpr std::chrono::milliseconds interval{50};

// NumPy goes through an array in many loops. So these outlive a loop.
thread_local Clock::time_point nextQuestion;
thread_local bool waitsToBeRaised = false;

/// The lock of the interpreter, whether or not this thread held it.
class WithInterpreter {
public:
  WithInterpreter() : state_(PyGILState_Ensure()) {}
  ~WithInterpreter() { PyGILState_Release(state_); }
  WithInterpreter(const WithInterpreter&) = delete;
  WithInterpreter& operator=(const WithInterpreter&) = delete;

  bool WasHeld() const { return state_ == PyGILState_LOCKED; }

private:
  PyGILState_STATE state_;
};

/// Raises an exception that stands in a tuple.
int RaiseFrom(void* triple) {
  waitsToBeRaised = false;
  const Ref owned(static_cast<PyObject*>(triple));
  PyObject* exception[3];
  for (Py_ssize_t i = 0; i < 3; ++i) {
    PyObject* part = PyTuple_GetItem(owned.Get(), i);
    exception[i] = part == Py_None ? nullptr : part;
    Py_XINCREF(exception[i]);
  }
  PyErr_Restore(exception[0], exception[1], exception[2]);
  return -1;
}

}  // namespace

Interrupts::~Interrupts() {
  if (exception_[0]) {
    const WithInterpreter lock;
    for (PyObject* part : exception_) Py_XDECREF(part);
  }
  if (released_) PyEval_RestoreThread(released_);
}

bool Interrupts::ShouldStop() {
  if (exception_[0] || waitsToBeRaised) return true;
  if (flag_ && *static_cast<const volatile std::int32_t*>(flag_) != 0) return true;
  const Clock::time_point now = Clock::now();
  if (now < nextQuestion) return false;
  nextQuestion = now + interval;
  return AskInterpreter();
}

// NumPy keeps the lock in loops over few elements. One that takes long does without it from here on.
bool Interrupts::AskInterpreter() {
  bool wasHeld = false;
  {
    const WithInterpreter lock;
    wasHeld = lock.WasHeld();
    if (PyErr_CheckSignals() != 0) PyErr_Fetch(&exception_[0], &exception_[1], &exception_[2]);
  }
  if (wasHeld) released_ = PyEval_SaveThread();
  return exception_[0] != nullptr;
}

kelplan_options Interrupts::Options() {
  const auto ask = [](void* interrupts) -> int { return static_cast<Interrupts*>(interrupts)->ShouldStop(); };
  return {sizeof(kelplan_options), ask, this};
}

bool Interrupts::Raise() {
  if (!exception_[0]) return false;
  PyErr_Restore(exception_[0], exception_[1], exception_[2]);
  for (PyObject*& part : exception_) part = nullptr;
  return true;
}

void Interrupts::RaiseLater() {
  if (!exception_[0]) return;
  const WithInterpreter lock;
  const auto orNone = [](PyObject* part) { return part ? part : Py_None; };
  Ref triple(PyTuple_Pack(3, orNone(exception_[0]), orNone(exception_[1]), orNone(exception_[2])));
  if (!triple) return PyErr_Clear();
  PyObject* handedOver = triple.Release();
  waitsToBeRaised = Py_AddPendingCall(RaiseFrom, handedOver) == 0;
  if (!waitsToBeRaised) Py_DECREF(handedOver);
}

}  // namespace kelpython
