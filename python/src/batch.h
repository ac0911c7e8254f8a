#ifndef KELPOWER_PYTHON_BATCH_H
#define KELPOWER_PYTHON_BATCH_H

#include "prepared.h"
#include "python.h"

namespace kelpython {

/// The prepared question in an object that `prepare` has given, or null with an exception.
const Prepared* PreparedOf(PyObject* object);

}  // namespace kelpython

#endif
