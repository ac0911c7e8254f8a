#include "lib.h"

#define KELPOWER_LIB_IMPORTS_NUMPY
#include "kelcommon/kel_mv.h"
#include "lib_functions.h"
#include "lib_numpy.h"
#include "lib_watch.h"

namespace kelpower_python {
namespace {

bool ImportNumPy() { return _import_array() >= 0 && _import_umath() >= 0; }

bool AddMissing(PyObject* dictionary) {
  PyObject* const missing = PyFloat_FromDouble(KelCommon::KelMV::Missing());
  const bool isAdded = missing && PyDict_SetItemString(dictionary, "MISSING", missing) == 0;
  Py_XDECREF(missing);
  return isAdded;
}

bool AddExports(PyObject* dictionary) {
  return AddMissing(dictionary) && AddFunctions(dictionary) && AddExportUfuncs(dictionary);
}

bool AddDictionary(PyObject* module, const char* name, bool (*fill)(PyObject*)) {
  PyObject* const dictionary = PyDict_New();
  const bool isAdded = dictionary && fill(dictionary) && PyObject_SetAttrString(module, name, dictionary) == 0;
  Py_XDECREF(dictionary);
  return isAdded;
}

}  // namespace

bool AddLib(PyObject* module) {
  return ImportNumPy() && FindMainThread() && AddDictionary(module, "lib_functions", AddExports) &&
         AddDictionary(module, "dist_functions", AddDistributionUfuncs);
}

}  // namespace kelpower_python
