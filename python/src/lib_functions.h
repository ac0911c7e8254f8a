#ifndef KELPOWER_PYTHON_LIB_FUNCTIONS_H
#define KELPOWER_PYTHON_LIB_FUNCTIONS_H

#include "python.h"

namespace kelpython {

/// Adds the exports that are no ufuncs: those that take arrays or give charts. False where Python has an error set.
bool AddFunctions(PyObject* dictionary);

/// Adds the exports of numbers as ufuncs.
bool AddExportUfuncs(PyObject* dictionary);

/// Adds the distributions as ufuncs.
bool AddDistributionUfuncs(PyObject* dictionary);

}  // namespace kelpython

#endif
