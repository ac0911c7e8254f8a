#include "batch.h"

#include <cstdint>
#include <memory>
#include <new>
#include <vector>

#include "doors.h"
#include "interrupts.h"
#include "numpy.h"

namespace kelpython {
namespace {

constexpr const char* capsuleName = "kelpower.batch";

void Release(PyObject* capsule) { delete static_cast<Prepared*>(PyCapsule_GetPointer(capsule, capsuleName)); }

/// (status, answer, batch or None) of a request.
PyObject* Prepare(PyObject*, PyObject* request) {
  char* text = nullptr;
  if (PyBytes_AsStringAndSize(request, &text, nullptr) != 0) return nullptr;
  try {
    auto prepared = std::make_unique<Prepared>(text);
    const int status = prepared->Status();
    if (!prepared->IsReady()) return Py_BuildValue("(isO)", status, prepared->Answer().c_str(), Py_None);
    const Ref capsule(PyCapsule_New(prepared.get(), capsuleName, Release));
    if (!capsule) return nullptr;
    return Py_BuildValue("(isO)", status, prepared.release()->Answer().c_str(), capsule.Get());
  } catch (const std::bad_alloc&) {
    return PyErr_NoMemory();
  }
}

/// Arrays of one dimension and one type, as `kelplan_run` takes them.
template <typename Number>
struct Arrays {
  std::vector<Number*> data;
  std::vector<std::ptrdiff_t> strides;
};

bool Refuse(const char* what) {
  PyErr_SetString(PyExc_TypeError, what);
  return false;
}

/// Adds an array of `rows` numbers; one of a single number is repeated where that is allowed.
template <typename Number>
bool Add(Arrays<Number>& arrays, PyObject* object, int type, npy_intp rows, bool mayRepeat) {
  if (!PyArray_Check(object)) return Refuse("an array is expected");
  auto* array = reinterpret_cast<PyArrayObject*>(object);
  if (PyArray_TYPE(array) != type || PyArray_NDIM(array) != 1 || PyArray_ISBYTESWAPPED(array)) {
    return Refuse("an array of one dimension in native numbers is expected");
  }
  const npy_intp count = PyArray_DIM(array, 0);
  const bool isRepeated = mayRepeat && count == 1;
  if (count != rows && !isRepeated) return Refuse("arrays differ in length");
  if (!mayRepeat && !PyArray_ISWRITEABLE(array)) return Refuse("an array cannot be written");
  arrays.data.push_back(static_cast<Number*>(PyArray_DATA(array)));
  arrays.strides.push_back(isRepeated ? 0 : PyArray_STRIDE(array, 0));
  return true;
}

bool AddAll(Arrays<double>& arrays, PyObject* tuple, npy_intp rows, bool mayRepeat) {
  for (Py_ssize_t i = 0; i < PyTuple_Size(tuple); ++i) {
    PyObject* object = PyTuple_GetItem(tuple, i);
    if (object == Py_None && !mayRepeat) {
      arrays.data.push_back(nullptr);
      arrays.strides.push_back(sizeof(double));
    } else if (!Add(arrays, object, NPY_DOUBLE, rows, mayRepeat)) {
      return false;
    }
  }
  return true;
}

/// The arrays of a call.
struct Rows {
  npy_intp count = 0;
  Arrays<double> columns, results;
  Arrays<std::int32_t> status, stop;
};

bool ReadRows(Rows& rows, const Prepared& prepared, PyObject* columns, PyObject* results, PyObject* status,
              PyObject* stop) {
  if (static_cast<std::size_t>(PyTuple_Size(columns)) != prepared.Columns()) return Refuse("columns are missing");
  if (static_cast<std::size_t>(PyTuple_Size(results)) != prepared.Results().size())
    return Refuse("results are missing");
  if (!PyArray_Check(status)) return Refuse("the status must be an array");
  rows.count = PyArray_SIZE(reinterpret_cast<PyArrayObject*>(status));
  return Add(rows.status, status, NPY_INT32, rows.count, false) && Add(rows.stop, stop, NPY_INT32, 1, false) &&
         AddAll(rows.columns, columns, rows.count, true) && AddAll(rows.results, results, rows.count, false);
}

PyObject* RunRows(const Prepared& prepared, const Rows& rows) {
  Interrupts interrupts(rows.stop.data[0]);
  const kelplan_options options = interrupts.Options();
  int ended = 0;
  {
    const WithoutInterpreter others;
    ended = kelplan_run(prepared.Batch(), static_cast<std::size_t>(rows.count), rows.columns.data.data(),
                        rows.columns.strides.data(), rows.results.data.data(), rows.results.strides.data(),
                        rows.status.data[0], rows.status.strides[0], &options);
  }
  return interrupts.Raise() ? nullptr : PyLong_FromLong(ended);
}

PyObject* Run(PyObject*, PyObject* arguments) {
  PyObject *batch, *columns, *results, *status, *stop;
  if (!PyArg_ParseTuple(arguments, "OO!O!OO", &batch, &PyTuple_Type, &columns, &PyTuple_Type, &results, &status,
                        &stop)) {
    return nullptr;
  }
  const Prepared* prepared = PreparedOf(batch);
  try {
    Rows rows;
    if (!prepared || !ReadRows(rows, *prepared, columns, results, status, stop)) return nullptr;
    return RunRows(*prepared, rows);
  } catch (const std::bad_alloc&) {
    return PyErr_NoMemory();
  }
}

PyMethodDef functions[] = {
    {"prepare", Prepare, METH_O, "prepare(request, /)\n--\n\nThe status, the JSON of the answer, and a batch or None."},
    {"run", Run, METH_VARARGS,
     "run(batch, columns, results, status, stop, /)\n--\n\nAnswers the rows of the columns and gives a status."},
    {nullptr, nullptr, 0, nullptr}};

}  // namespace

const Prepared* PreparedOf(PyObject* object) {
  return static_cast<const Prepared*>(PyCapsule_GetPointer(object, capsuleName));
}

bool AddBatches(PyObject* module) { return PyModule_AddFunctions(module, functions) == 0; }

}  // namespace kelpython
