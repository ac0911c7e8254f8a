#include "interrupts.h"

namespace kelpython {
namespace {

/// The lock of the interpreter, whether or not this thread held it.
class WithInterpreter {
public:
  WithInterpreter() : state_(PyGILState_Ensure()) {}
  ~WithInterpreter() { PyGILState_Release(state_); }
  WithInterpreter(const WithInterpreter&) = delete;
  WithInterpreter& operator=(const WithInterpreter&) = delete;

private:
  PyGILState_STATE state_;
};

/// Raises an exception that stands in a tuple.
int RaiseFrom(void* triple) {
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
  if (!exception_[0]) return;
  const WithInterpreter lock;
  for (PyObject* part : exception_) Py_XDECREF(part);
}

bool Interrupts::ShouldStop() {
  if (exception_[0]) return true;
  if (flag_ && *static_cast<const volatile std::int32_t*>(flag_) != 0) return true;
  if (Clock::now() < next_) return false;
  const WithInterpreter lock;
  if (PyErr_CheckSignals() != 0) {
    PyErr_Fetch(&exception_[0], &exception_[1], &exception_[2]);
    return true;
  }
  { const WithoutInterpreter others; }  // a turn for the other threads, where this one holds the lock throughout
  next_ = Clock::now() + interval;
  return false;
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
  if (Py_AddPendingCall(RaiseFrom, handedOver) != 0) Py_DECREF(handedOver);
}

}  // namespace kelpython
