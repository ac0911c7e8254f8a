#ifndef KELPOWER_PYTHON_LIB_QUICK_H
#define KELPOWER_PYTHON_LIB_QUICK_H

/// \file
/// Which calls of exact tests are made with a request to stop. The library owes a request one question a table or count,
/// of which a test with millions of subjects has too many. Without a request most exact tests are quick: a search that
/// ends at three million subjects a group takes seconds. Only the conditional test of two proportions is not, because
/// its time grows with the product of the sizes.

#include <cstddef>
#include <tuple>
#include <type_traits>

#include "kelpower.h"

namespace kelpython {

/// The function without its request.
template <auto function, class Type = decltype(function)>
struct Unasked;

/// The function with its request for the conditional test alone. The parameter `exact` has the given place, and that of
/// the method the next.
template <auto function, std::size_t exactPlace, class Type = decltype(function)>
struct AskedByConditionalTest;

namespace detail {

template <class P>
P Passed(std::remove_reference_t<P>& argument, bool isPassed) {
  if constexpr (std::is_same_v<P, StopRequest*>)
    return isPassed ? argument : nullptr;
  else
    return argument;
}

}  // namespace detail

template <auto function, class R, class... P>
struct Unasked<function, R (*)(P...)> {
  static R Call(P... arguments) { return function(detail::Passed<P>(arguments, false)...); }
};

template <auto function, std::size_t exactPlace, class R, class... P>
struct AskedByConditionalTest<function, exactPlace, R (*)(P...)> {
  static R Call(P... arguments) {
    const auto all = std::tie(arguments...);
    const int method = std::get<exactPlace + 1>(all);
    const bool isConditional = std::get<exactPlace>(all) != 0 && (method < 0 || method > 2);
    return function(detail::Passed<P>(arguments, isConditional)...);
  }
};

}  // namespace kelpython

#endif
