#include "lib_call.h"

#include <algorithm>
#include <cstring>

namespace kelpython {
namespace {

// Named tuples, made once.
PyObject* curveType = nullptr;
PyObject* surfaceType = nullptr;
PyObject* sizesType = nullptr;

std::size_t PlaceOf(const PythonCall& call, PyObject* name) {
  std::size_t place = 0;
  while (place < call.count && PyUnicode_CompareWithASCIIString(name, call.names[place]) != 0) ++place;
  return place;
}

bool PlaceKeyword(const PythonCall& call, bool hasRepaired, PyObject* name, PyObject* argument, PyObject** given) {
  const std::size_t place = PlaceOf(call, name);
  const bool isRepaired = hasRepaired && PyUnicode_CompareWithASCIIString(name, repairedName) == 0;
  if (place == call.count && !isRepaired) {
    PyErr_Format(PyExc_TypeError, "%s() has no argument %R", call.function, name);
    return false;
  }
  if (given[place]) {
    PyErr_Format(PyExc_TypeError, "%s() got the argument %R twice", call.function, name);
    return false;
  }
  given[place] = argument;
  return true;
}

PyObject* NewArray(const double* values, std::size_t size) {
  npy_intp length = static_cast<npy_intp>(size);
  PyObject* const array = PyArray_SimpleNew(1, &length, NPY_DOUBLE);
  if (array && size > 0)
    std::memcpy(PyArray_DATA(reinterpret_cast<PyArrayObject*>(array)), values, size * sizeof(double));
  return array;
}

// Empty where there are no values.
PyObject* NewAxis(const double* values, std::int32_t count) {
  return NewArray(values, values && count > 0 ? static_cast<std::size_t>(count) : 0);
}

PyObject* NewHeights(const XYZPlot& surface) {
  // One axis may be empty and the other not.
  npy_intp lengths[2] = {surface.z ? surface.xCount : 0, surface.z ? surface.yCount : 0};
  PyObject* const array = PyArray_SimpleNew(2, lengths, NPY_DOUBLE);
  const npy_intp count = lengths[0] * lengths[1];
  if (array && count > 0)
    std::memcpy(PyArray_DATA(reinterpret_cast<PyArrayObject*>(array)), surface.z,
                static_cast<std::size_t>(count) * sizeof(double));
  return array;
}

// The tuple of a type with parts whose references it takes over; null where one of them is.
template <class... Parts>
PyObject* NewTuple(PyObject* type, Parts... parts) {
  const std::array<Ref, sizeof...(Parts)> owned{Ref(parts)...};
  if (std::any_of(owned.begin(), owned.end(), [](const Ref& part) { return !part; })) return nullptr;
  return PyObject_CallFunctionObjArgs(type, parts..., nullptr);
}

bool AddTuple(PyObject* dictionary, const char* name, const char* fields, const char* doc, PyObject*& type) {
  const Ref collections(PyImport_ImportModule("collections"));
  if (!collections) return false;
  const Ref factory(PyObject_GetAttrString(collections.Get(), "namedtuple"));
  const Ref arguments(Py_BuildValue("(ss)", name, fields));
  const Ref keywords(Py_BuildValue("{ss}", "module", "kelpower.lib"));
  if (!factory || !arguments || !keywords) return false;
  Ref made(PyObject_Call(factory.Get(), arguments.Get(), keywords.Get()));
  const Ref text(PyUnicode_FromString(doc));
  if (!made || !text || PyObject_SetAttrString(made.Get(), "__doc__", text.Get()) != 0) return false;
  if (PyDict_SetItemString(dictionary, name, made.Get()) != 0) return false;
  type = made.Release();
  return true;
}

}  // namespace

bool SortArguments(const PythonCall& call, bool hasRepaired, PyObject** given) {
  const auto positional = static_cast<std::size_t>(call.positional);
  if (positional > call.count) {
    PyErr_Format(PyExc_TypeError, "%s() takes %zu arguments, but %zu were given", call.function, call.count,
                 positional);
    return false;
  }
  std::copy(call.arguments, call.arguments + positional, given);
  const Py_ssize_t keywords = call.keywords ? PyTuple_Size(call.keywords) : 0;
  for (Py_ssize_t i = 0; i < keywords; ++i)
    if (!PlaceKeyword(call, hasRepaired, PyTuple_GetItem(call.keywords, i), call.arguments[call.positional + i], given))
      return false;
  for (std::size_t i = 0; i < call.count; ++i) {
    if (given[i]) continue;
    PyErr_Format(PyExc_TypeError, "%s() needs the argument '%s'", call.function, call.names[i]);
    return false;
  }
  return true;
}

bool TakeNumber(PyObject* object, double& number) {
  number = PyFloat_AsDouble(object);
  return number != -1 || !PyErr_Occurred();
}

bool TakeInteger(PyObject* object, std::int32_t lowest, std::int32_t highest, std::int32_t& integer) {
  const Ref index(PyNumber_Index(object));
  if (!index) return false;
  int overflow = 0;
  const long long number = PyLong_AsLongLongAndOverflow(index.Get(), &overflow);
  if (number == -1 && overflow == 0 && PyErr_Occurred()) return false;
  // A code outside the range stays another one; of a one-byte flag, every value but 0 stays a yes.
  const bool isAbove = overflow > 0 || number > highest || (lowest == 0 && (overflow < 0 || number < 0));
  const bool isBelow = !isAbove && (overflow < 0 || number < lowest);
  integer = isAbove ? highest : isBelow ? lowest : static_cast<std::int32_t>(number);
  return true;
}

bool TakeArray(PyObject* object, std::vector<double>& array) {
  const Ref converted(PyArray_FROMANY(object, NPY_DOUBLE, 0, 0, NPY_ARRAY_CARRAY_RO));
  if (!converted) return false;
  auto* const source = reinterpret_cast<PyArrayObject*>(converted.Get());
  if (PyArray_NDIM(source) != 1) {
    PyErr_Format(PyExc_ValueError, "a sequence of numbers is expected, not an array of %d dimensions",
                 PyArray_NDIM(source));
    return false;
  }
  const auto* const data = static_cast<const double*>(PyArray_DATA(source));
  const auto size = static_cast<std::size_t>(PyArray_SIZE(source));
  array.reserve(std::max<std::size_t>(size, 1));  // so that an empty array is not null
  array.assign(data, data + size);
  return true;
}

bool CheckLength(const PythonCall& call, std::size_t parameter, const std::vector<double>& array, std::int32_t groups) {
  if (groups <= 0 || array.size() >= static_cast<std::size_t>(groups)) return true;
  PyErr_Format(PyExc_ValueError, "%s(): %s has %zu numbers, but numGroups is %d", call.function, call.names[parameter],
               array.size(), groups);
  return false;
}

bool CheckRepaired(PyObject* target, std::int32_t groups) {
  auto* const array = reinterpret_cast<PyArrayObject*>(target);
  if (target == Py_None) return true;
  if (PyArray_Check(target) && PyArray_TYPE(array) == NPY_DOUBLE && PyArray_ISCARRAY(array) &&
      PyArray_SIZE(array) >= groups)
    return true;
  PyErr_Format(PyExc_TypeError, "'%s' must be a contiguous array of doubles that can be written, one a group",
               repairedName);
  return false;
}

void GiveRepaired(PyObject* target, const std::vector<double>& coefficients, std::int32_t groups) {
  if (target == Py_None || groups <= 0) return;
  std::copy_n(coefficients.begin(), groups,
              static_cast<double*>(PyArray_DATA(reinterpret_cast<PyArrayObject*>(target))));
}

PyObject* ToPython(double result) { return PyFloat_FromDouble(result); }

PyObject* ToPython(double total, const DoubleVector& groupSizes) {
  return NewTuple(sizesType, PyFloat_FromDouble(total), NewArray(groupSizes.data(), groupSizes.size()));
}

PyObject* ToPython(XYPlot& curve) {
  PyObject* const x = NewAxis(curve.x, curve.count);
  PyObject* const y = NewAxis(curve.y, curve.count);
  FreeMemXYPlot(&curve);
  return NewTuple(curveType, x, y);
}

PyObject* ToPython(XYZPlot& surface) {
  PyObject* const x = NewAxis(surface.x, surface.xCount);
  PyObject* const y = NewAxis(surface.y, surface.yCount);
  PyObject* const z = NewHeights(surface);
  FreeMemXYZPlot(&surface);
  return NewTuple(surfaceType, x, y, z);
}

bool AddAnswerTypes(PyObject* dictionary) {
  return AddTuple(dictionary, "XYPlot", "x y", "A curve: the points (x[i], y[i]). Both are empty for invalid input.",
                  curveType) &&
         AddTuple(dictionary, "XYZPlot", "x y z",
                  "A surface: z[i, j] is the value at (x[i], y[j]). All are empty for invalid input.", surfaceType) &&
         AddTuple(dictionary, "Sizes", "total groupSizes",
                  "The total size over all groups, and the size of each group. The array is empty, or holds missing "
                  "values, where there are none.",
                  sizesType);
}

bool IsRecord(const char* type, PyObject* object) {
  PyObject* const wanted = std::strcmp(type, "XYPlot") == 0 ? curveType : surfaceType;
  return PyObject_IsInstance(object, wanted) == 1;
}

}  // namespace kelpython
