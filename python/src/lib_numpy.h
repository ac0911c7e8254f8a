#ifndef KELPOWER_PYTHON_LIB_NUMPY_H
#define KELPOWER_PYTHON_LIB_NUMPY_H

/// \file
/// NumPy's C interface for the files of `kelpower.lib` and `kelpower.dist`, imported by one of them.

#define PY_SSIZE_T_CLEAN
#include <Python.h>

#define NPY_NO_DEPRECATED_API NPY_1_22_API_VERSION
#define NPY_TARGET_VERSION NPY_1_22_API_VERSION
#define PY_ARRAY_UNIQUE_SYMBOL kelpower_lib_array_interface
#define PY_UFUNC_UNIQUE_SYMBOL kelpower_lib_ufunc_interface
#ifndef KELPOWER_LIB_IMPORTS_NUMPY
#define NO_IMPORT_ARRAY
#define NO_IMPORT_UFUNC
#endif

#include <numpy/arrayobject.h>
#include <numpy/ufuncobject.h>

#endif
