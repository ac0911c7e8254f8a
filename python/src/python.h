#ifndef KELPOWER_PYTHON_PYTHON_H
#define KELPOWER_PYTHON_PYTHON_H

// Before all others: what of Python's and NumPy's C interfaces is used, the parts that are stable between releases.
#define PY_SSIZE_T_CLEAN
#ifndef Py_GIL_DISABLED
#define Py_LIMITED_API 0x030a0000
#endif
#include <Python.h>

#include <utility>

namespace kelpython {

/// A reference that is owned. None where it holds null.
class Ref {
public:
  explicit Ref(PyObject* object = nullptr) : object_(object) {}
  Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  Ref& operator=(Ref&& other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  Ref(const Ref&) = delete;
  Ref& operator=(const Ref&) = delete;
  ~Ref() { Py_XDECREF(object_); }

  explicit operator bool() const { return object_ != nullptr; }
  PyObject* Get() const { return object_; }
  PyObject* Release() { return std::exchange(object_, nullptr); }

private:
  PyObject* object_;
};

/// Lets other threads of the interpreter go on for as long as it lives.
class WithoutInterpreter {
public:
  WithoutInterpreter() : state_(PyEval_SaveThread()) {}
  ~WithoutInterpreter() { PyEval_RestoreThread(state_); }
  WithoutInterpreter(const WithoutInterpreter&) = delete;
  WithoutInterpreter& operator=(const WithoutInterpreter&) = delete;

private:
  PyThreadState* state_;
};

}  // namespace kelpython

#endif
