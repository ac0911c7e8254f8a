#include "lib_functions.h"
#include "lib_quick.h"
#include "lib_ufunc.h"

namespace kelpython {

bool AddExportUfuncs(PyObject* dictionary) {
  static std::vector<Ufunc> ufuncs = {
#define KEL_FUNCTION(name, doc, ...)
#define KEL_RELEASE(name, record, doc)
#define KEL_UFUNC(name, function, doc) UfuncOf<double>(#name, function, doc),
#include "lib_exports.inc"
#undef KEL_UFUNC
#undef KEL_RELEASE
#undef KEL_FUNCTION
  };
  return AddUfuncs(dictionary, ufuncs);
}

}  // namespace kelpython
