#ifndef KELPOWER_PYTHON_NUMPY_H
#define KELPOWER_PYTHON_NUMPY_H

#include "python.h"

// One table of NumPy's functions for all sources; module.cpp, which fills it, defines KELPOWER_IMPORTS_NUMPY.
#define NPY_NO_DEPRECATED_API NPY_1_22_API_VERSION
#define NPY_TARGET_VERSION NPY_1_22_API_VERSION
#define PY_ARRAY_UNIQUE_SYMBOL KELPOWER_ARRAY_API
#define PY_UFUNC_UNIQUE_SYMBOL KELPOWER_UFUNC_API
#ifndef KELPOWER_IMPORTS_NUMPY
#define NO_IMPORT_ARRAY
#define NO_IMPORT_UFUNC
#endif
#include <numpy/arrayobject.h>
#include <numpy/ufuncobject.h>

#endif
