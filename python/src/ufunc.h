#ifndef KELPOWER_PYTHON_UFUNC_H
#define KELPOWER_PYTHON_UFUNC_H

#include <memory>
#include <string>
#include <vector>

#include "numpy.h"
#include "python.h"

namespace kelpython {

/// What a ufunc refers to for as long as it lives: its loop's data and the texts and tables that NumPy does not copy.
class UfuncData {
public:
  virtual ~UfuncData() = default;

  std::string name;
  std::string doc;
  std::string signature;  // of a generalized one, else empty
  std::vector<char> types;
  PyUFuncGenericFunction loops[1] = {nullptr};
  void* data[1] = {nullptr};
};

/// A ufunc of doubles alone. It owns the data.
PyObject* MakeUfunc(std::unique_ptr<UfuncData> data, PyUFuncGenericFunction loop, int inputs, int outputs);

/// Keeps a loop's computation from leaving floating-point flags behind, which NumPy would warn of. Instead a row without
/// an answer sets that of an invalid operation.
class FloatingPointFlags {
public:
  FloatingPointFlags() = default;
  ~FloatingPointFlags();
  FloatingPointFlags(const FloatingPointFlags&) = delete;
  FloatingPointFlags& operator=(const FloatingPointFlags&) = delete;

  void SetInvalid() { isInvalid_ = true; }

private:
  bool isInvalid_ = false;
};

}  // namespace kelpython

#endif
