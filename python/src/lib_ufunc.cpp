#include "lib_ufunc.h"

namespace kelpower_python {

bool AddUfuncs(PyObject* dictionary, std::vector<Ufunc>& ufuncs) {
  for (Ufunc& ufunc : ufuncs) {
    ufunc.data.assign(ufunc.loops.size(), &ufunc);
    PyObject* const made = PyUFunc_FromFuncAndData(
        ufunc.loops.data(), ufunc.data.data(), const_cast<char*>(ufunc.types), static_cast<int>(ufunc.loops.size()),
        ufunc.inputs, ufunc.outputs, PyUFunc_None, ufunc.name, ufunc.doc, 0);
    if (!made) return false;
    const bool isAdded = PyDict_SetItemString(dictionary, ufunc.name, made) == 0;
    Py_DECREF(made);
    if (!isAdded) return false;
  }
  return true;
}

}  // namespace kelpower_python
