#include "lib_functions.h"

#include "lib_call.h"

namespace kelpython {
namespace {

// The arrays of the record were released when those of Python were made.
PyObject* CheckRecord(const char* function, const char* type, PyObject* record) {
  if (IsRecord(type, record)) Py_RETURN_NONE;
  PyErr_Format(PyExc_TypeError, "%s() takes an %s", function, type);
  return nullptr;
}

// What the table of exports says of a function that takes an array or gives a chart: its name, its documentation, and
// the names of its parameters.
#define KEL_UFUNC(name, function, doc)
#define KEL_RELEASE(name, record, doc) \
  PyObject* Call##name(PyObject*, PyObject* argument) { return CheckRecord(#name, #record, argument); }
#define KEL_FUNCTION(name, doc, ...)                                                                              \
  PyObject* Call##name(PyObject*, PyObject* const* arguments, Py_ssize_t positional, PyObject* keywords) {        \
    static constexpr std::array parameters{__VA_ARGS__};                                                          \
    return CallFromPython({#name, parameters.data(), parameters.size(), arguments, positional, keywords}, &name); \
  }
#include "lib_exports.inc"
#undef KEL_RELEASE
#undef KEL_FUNCTION

PyMethodDef methods[] = {
#define KEL_RELEASE(name, record, doc) {#name, &Call##name, METH_O, doc},
#define KEL_FUNCTION(name, doc, ...) \
  {#name, reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(&Call##name)), METH_FASTCALL | METH_KEYWORDS, doc},
#include "lib_exports.inc"
#undef KEL_FUNCTION
#undef KEL_RELEASE
#undef KEL_UFUNC
    {nullptr, nullptr, 0, nullptr}};

}  // namespace

bool AddFunctions(PyObject* dictionary) {
  if (!AddAnswerTypes(dictionary)) return false;
  const Ref moduleName(PyUnicode_FromString("kelpower.lib"));
  if (!moduleName) return false;
  for (PyMethodDef* method = methods; method->ml_name; ++method) {
    const Ref function(PyCFunction_NewEx(method, nullptr, moduleName.Get()));
    if (!function || PyDict_SetItemString(dictionary, method->ml_name, function.Get()) != 0) return false;
  }
  return true;
}

}  // namespace kelpython
