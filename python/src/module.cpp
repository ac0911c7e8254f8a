// The extension module of the Python package.
#define KELPOWER_IMPORTS_NUMPY
#include "doors.h"
#include "lib.h"
#include "numpy.h"

namespace {

int Fill(PyObject* module) {
  // The names that the headers of NumPy 1 have too.
  if (_import_array() < 0 || _import_umath() < 0) return -1;
  using namespace kelpython;
  return AddDoors(module) && AddBatches(module) && AddUfuncs(module) && AddLib(module) ? 0 : -1;
}

PyModuleDef_Slot slots[] = {{Py_mod_exec, reinterpret_cast<void*>(Fill)},
#ifdef Py_GIL_DISABLED
                            {Py_mod_gil, Py_MOD_GIL_NOT_USED},
#endif
                            {0, nullptr}};

PyModuleDef definition = {PyModuleDef_HEAD_INIT,
                          "kelpower._core",
                          "The planner and the library of kelpower.",
                          0,
                          nullptr,
                          slots,
                          nullptr,
                          nullptr,
                          nullptr};

}  // namespace

PyMODINIT_FUNC PyInit__core() { return PyModuleDef_Init(&definition); }
