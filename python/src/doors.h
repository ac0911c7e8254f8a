#ifndef KELPOWER_PYTHON_DOORS_H
#define KELPOWER_PYTHON_DOORS_H

#include "python.h"

namespace kelpython {

/// Adds to the module the planner's functions that take a request: solve, draw, convert and describe.
bool AddDoors(PyObject* module);

/// Adds `prepare` and the type of a prepared question.
bool AddBatches(PyObject* module);

/// Adds the functions that make ufuncs.
bool AddUfuncs(PyObject* module);

}  // namespace kelpython

#endif
