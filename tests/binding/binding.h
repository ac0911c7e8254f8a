#ifndef KELPOWER_TESTS_BINDING_BINDING_H
#define KELPOWER_TESTS_BINDING_BINDING_H

/// \file
/// Calls every export of the library through one interface: the types of its arguments are deduced from the header, so
/// tests that visit all exports keep no table by hand.

#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "kelpower.h"
#include "support/stop_requests.h"

namespace keltest {

/// One argument of a call. Which members count depends on its type; `array` holds the content after the call too.
struct Argument {
  double number = 0;           // d
  std::int32_t integer = 0;    // i, b
  bool isNull = false;         // p, P, s: pass a null pointer
  std::vector<double> array;   // p, P, v
  CountingStop stopRequest;    // s
  XYPlot* curve = nullptr;     // X
  XYZPlot* surface = nullptr;  // Z
};

/// What a call returned. The member that `Function::result` names is set; the arrays of a record belong to the caller.
struct Result {
  double number = 0;
  XYPlot curve{};
  XYZPlot surface{};
};

/// A function of the library. `arguments` has one letter an argument:
/// d double, i 32-bit int, b one-byte flag, p array that is read, P array that may change, v DoubleVector,
/// s StopRequest, n unused pointer, X and Z pointers to a record.
struct Function {
  std::string name;
  std::string result;  // d, void, XY or XYZ
  std::string arguments;
  Result (*call)(void (*address)(), Argument* arguments);
  void (*address)();
};

/// Calls `function`. Allocates nothing, so that allocations within the call can be counted.
inline Result Call(const Function& function, std::vector<Argument>& arguments) {
  return function.call(function.address, arguments.data());
}

/// All exports, in the order of the list of exported names.
const std::vector<Function>& Exports();

/// The function called `name` in `functions`, or null.
const Function* Find(const std::vector<Function>& functions, const std::string& name);

namespace detail {

/// The start of the argument's array. That of an empty one points past the end of something, so that it is not null
/// and the address sanitizer sees every access.
double* Data(Argument& argument);

template <class T>
struct Type;
template <>
struct Type<double> {
  static constexpr char letter = 'd';
  static double Get(Argument& a) { return a.number; }
};
template <>
struct Type<std::int32_t> {
  static constexpr char letter = 'i';
  static std::int32_t Get(Argument& a) { return a.integer; }
};
template <>
struct Type<std::uint8_t> {
  static constexpr char letter = 'b';
  static std::uint8_t Get(Argument& a) { return static_cast<std::uint8_t>(a.integer); }
};
template <>
struct Type<const double*> {
  static constexpr char letter = 'p';
  static const double* Get(Argument& a) { return Data(a); }
};
template <>
struct Type<double*> {
  static constexpr char letter = 'P';
  static double* Get(Argument& a) { return Data(a); }
};
template <>
struct Type<DoubleVector&> {
  static constexpr char letter = 'v';
  static DoubleVector& Get(Argument& a) { return a.array; }
};
template <>
struct Type<StopRequest*> {
  static constexpr char letter = 's';
  static StopRequest* Get(Argument& a) { return a.isNull ? nullptr : &a.stopRequest; }
};
template <>
struct Type<const void*> {
  static constexpr char letter = 'n';
  static const void* Get(Argument&) { return nullptr; }
};
template <>
struct Type<XYPlot*> {
  static constexpr char letter = 'X';
  static XYPlot* Get(Argument& a) { return a.curve; }
};
template <>
struct Type<XYZPlot*> {
  static constexpr char letter = 'Z';
  static XYZPlot* Get(Argument& a) { return a.surface; }
};

inline const char* ResultName(double (*)()) { return "d"; }
inline const char* ResultName(void (*)()) { return "void"; }
inline const char* ResultName(XYPlot (*)()) { return "XY"; }
inline const char* ResultName(XYZPlot (*)()) { return "XYZ"; }

inline void Store(Result& result, double number) { result.number = number; }
inline void Store(Result& result, const XYPlot& curve) { result.curve = curve; }
inline void Store(Result& result, const XYZPlot& surface) { result.surface = surface; }

template <class R, class... P, std::size_t... I>
Result Invoke(R (*function)(P...), [[maybe_unused]] Argument* a, std::index_sequence<I...>) {
  Result result;
  if constexpr (std::is_void_v<R>)
    function(Type<P>::Get(a[I])...);
  else
    Store(result, function(Type<P>::Get(a[I])...));
  return result;
}

}  // namespace detail

template <class R, class... P>
Function Bind(const char* name, R (*function)(P...)) {
  const auto call = [](void (*address)(), Argument* arguments) {
    return detail::Invoke(reinterpret_cast<R (*)(P...)>(address), arguments, std::index_sequence_for<P...>());
  };
  return {name, detail::ResultName(static_cast<R (*)()>(nullptr)), std::string{detail::Type<P>::letter...}, call,
          reinterpret_cast<void (*)()>(function)};
}

}  // namespace keltest

#endif
