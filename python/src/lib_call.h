#ifndef KELPOWER_PYTHON_LIB_CALL_H
#define KELPOWER_PYTHON_LIB_CALL_H

/// \file
/// Calls functions that take arrays or give charts, with arguments from Python. Their types are deduced.

#include <array>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <type_traits>
#include <utility>
#include <vector>

#include "kelpower.h"
#include "numpy.h"

namespace kelpython {

/// The arguments as Python passes them to a function of a module, and what they are called.
struct PythonCall {
  const char* function;
  const char* const* names;  // of the parameters, all of which must be given
  std::size_t count;
  PyObject* const* arguments;
  Py_ssize_t positional;
  PyObject* keywords;  // names of the arguments after the positional ones, or null
};

/// The name of the parameter that may be left out, of functions that repair coefficients.
constexpr const char* repairedName = "repaired";

/// Puts the arguments in the order of the parameters into `given`, and that called `repaired` behind them where
/// `hasRepaired`. False where Python has an error set, as in all functions below.
bool SortArguments(const PythonCall& call, bool hasRepaired, PyObject** given);

/// One argument, ready for the library.
struct Value {
  double number = 0;
  std::int32_t integer = 0;
  std::vector<double> array;
};

bool TakeNumber(PyObject* object, double& number);
bool TakeInteger(PyObject* object, std::int32_t lowest, std::int32_t highest, std::int32_t& integer);
bool TakeArray(PyObject* object, std::vector<double>& array);

/// Whether an array has one number a group at least.
bool CheckLength(const PythonCall& call, std::size_t parameter, const std::vector<double>& array, std::int32_t groups);

/// Whether repaired coefficients of so many groups can be written to what the caller gave for them, if anything.
bool CheckRepaired(PyObject* target, std::int32_t groups);

/// Writes them.
void GiveRepaired(PyObject* target, const std::vector<double>& coefficients, std::int32_t groups);

/// What functions answer. The records are released.
PyObject* ToPython(double result);
PyObject* ToPython(double total, const DoubleVector& groupSizes);
PyObject* ToPython(XYPlot& curve);
PyObject* ToPython(XYZPlot& surface);

/// Makes the types of the answers that have several parts and adds them to the dictionary.
bool AddAnswerTypes(PyObject* dictionary);

/// Whether the object is an answer of the type with this name.
bool IsRecord(const char* type, PyObject* object);

/// How a parameter of a function is taken from Python, and given to the function.
template <class T>
struct Parameter;
template <>
struct Parameter<double> {
  static constexpr bool isGiven = true;
  static bool Take(PyObject* object, Value& value) { return TakeNumber(object, value.number); }
  static double Get(Value& value) { return value.number; }
};
template <>
struct Parameter<std::int32_t> {
  static constexpr bool isGiven = true;
  static bool Take(PyObject* object, Value& value) { return TakeInteger(object, INT32_MIN, INT32_MAX, value.integer); }
  static std::int32_t Get(Value& value) { return value.integer; }
};
template <>
struct Parameter<std::uint8_t> {
  static constexpr bool isGiven = true;
  static bool Take(PyObject* object, Value& value) { return TakeInteger(object, 0, UINT8_MAX, value.integer); }
  static std::uint8_t Get(Value& value) { return static_cast<std::uint8_t>(value.integer); }
};
template <>
struct Parameter<const double*> {
  static constexpr bool isGiven = true;
  static bool Take(PyObject* object, Value& value) { return TakeArray(object, value.array); }
  static const double* Get(Value& value) { return value.array.data(); }
};
template <>
struct Parameter<double*> {
  static constexpr bool isGiven = true;
  static bool Take(PyObject* object, Value& value) { return TakeArray(object, value.array); }
  static double* Get(Value& value) { return value.array.data(); }
};
template <>
struct Parameter<DoubleVector&> {
  static constexpr bool isGiven = false;
  static bool Take(PyObject*, Value&) { return true; }
  static DoubleVector& Get(Value& value) { return value.array; }
};
template <>
struct Parameter<const void*> {
  static constexpr bool isGiven = false;
  static bool Take(PyObject*, Value&) { return true; }
  static const void* Get(Value&) { return nullptr; }
};

template <class R, class... P>
struct Caller {
  static constexpr std::size_t count = sizeof...(P);
  static constexpr std::size_t none = count;
  static constexpr std::array<bool, count> isGiven{Parameter<P>::isGiven...};
  static constexpr std::array<bool, count> isArray{std::is_pointer_v<P> && Parameter<P>::isGiven...};

  /// The first parameter of the type, or `none`.
  template <class T>
  static constexpr std::size_t First() {
    constexpr std::array<bool, count> matches{std::is_same_v<P, T>...};
    std::size_t i = 0;
    while (i < count && !matches[i]) ++i;
    return i;
  }

  static constexpr std::size_t repaired = First<double*>();
  static constexpr std::size_t sizes = First<DoubleVector&>();
  static constexpr std::size_t groups = First<std::int32_t>();  // of functions with arrays

  using Values = std::array<Value, count>;

  template <std::size_t... I>
  static bool Take(PyObject* const* given, Values& values, std::index_sequence<I...>) {
    std::size_t next = 0;
    return (Parameter<P>::Take(isGiven[I] ? given[next++] : nullptr, values[I]) && ...);
  }

  static bool CheckLengths(const PythonCall& call, const Values& values) {
    std::size_t place = 0;
    for (std::size_t i = 0; i < count; ++i) {
      if (isArray[i] && !CheckLength(call, place, values[i].array, values[groups].integer)) return false;
      if (isGiven[i]) ++place;
    }
    return true;
  }

  template <std::size_t... I>
  static R CallReleased(R (*function)(P...), Values& values, std::index_sequence<I...>) {
    const WithoutInterpreter others;
    return function(Parameter<P>::Get(values[I])...);
  }

  static PyObject* Answer(R& result, const Values& values) {
    if constexpr (sizes == none)
      return ToPython(result);
    else
      return ToPython(result, values[sizes].array);
  }

  static PyObject* Run(const PythonCall& call, R (*function)(P...)) {
    std::array<PyObject*, count + 1> given{};
    if (!SortArguments(call, repaired != none, given.data())) return nullptr;
    Values values;
    if (!Take(given.data(), values, std::index_sequence_for<P...>())) return nullptr;
    if (!CheckLengths(call, values)) return nullptr;
    PyObject* const target = repaired == none ? nullptr : given[call.count];
    if (target && !CheckRepaired(target, values[groups].integer)) return nullptr;
    R result = CallReleased(function, values, std::index_sequence_for<P...>());
    if constexpr (repaired != none)
      if (target) GiveRepaired(target, values[repaired].array, values[groups].integer);
    return Answer(result, values);
  }
};

template <class R, class... P>
PyObject* CallFromPython(const PythonCall& call, R (*function)(P...)) {
  try {
    return Caller<R, P...>::Run(call, function);
  } catch (const std::exception&) {  // the only one that functions throw is std::bad_alloc
    return PyErr_NoMemory();
  }
}

}  // namespace kelpython

#endif
