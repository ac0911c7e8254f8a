#include "lib.h"

#include "kelcommon/kel_mv.h"
#include "lib_functions.h"

namespace kelpython {
namespace {

bool AddMissing(PyObject* dictionary) {
  const Ref missing(PyFloat_FromDouble(KelCommon::KelMV::Missing()));
  return missing && PyDict_SetItemString(dictionary, "MISSING", missing.Get()) == 0;
}

bool AddExports(PyObject* dictionary) {
  return AddMissing(dictionary) && AddFunctions(dictionary) && AddExportUfuncs(dictionary);
}

bool AddDictionary(PyObject* module, const char* name, bool (*fill)(PyObject*)) {
  const Ref dictionary(PyDict_New());
  return dictionary && fill(dictionary.Get()) && PyObject_SetAttrString(module, name, dictionary.Get()) == 0;
}

}  // namespace

bool AddLib(PyObject* module) {
  return AddDictionary(module, "lib_functions", AddExports) &&
         AddDictionary(module, "dist_functions", AddDistributionUfuncs);
}

}  // namespace kelpython
