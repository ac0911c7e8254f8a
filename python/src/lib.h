#ifndef KELPOWER_PYTHON_LIB_H
#define KELPOWER_PYTHON_LIB_H

#include "python.h"

namespace kelpython {

/// Adds `lib_functions` and `dist_functions` to the module: dictionaries of what kelpower.lib and kelpower.dist offer.
/// False where Python has an error set.
bool AddLib(PyObject* module);

}  // namespace kelpython

#endif
