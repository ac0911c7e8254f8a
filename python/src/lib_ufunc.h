#ifndef KELPOWER_PYTHON_LIB_UFUNC_H
#define KELPOWER_PYTHON_LIB_UFUNC_H

/// \file
/// Makes NumPy ufuncs of functions. The types of their arguments are deduced from the functions.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <limits>
#include <type_traits>
#include <utility>
#include <vector>

#include "interrupts.h"
#include "kelpower.h"
#include "numpy.h"
#include "ufunc.h"

namespace kelpython {

/// Ends a call for `Interrupts`.
class Request final : public StopRequest {
public:
  explicit Request(Interrupts& interrupts) : interrupts_(interrupts) {}
  bool ShouldStop() override { return interrupts_.ShouldStop(); }

private:
  Interrupts& interrupts_;
};

/// What the calls of one loop share.
struct LoopContext {
  Interrupts interrupts;
  Request request{interrupts};
  DoubleVector sizes;
};

/// Has the interpreter raise MemoryError in this thread soon.
void RunOutOfMemory();

/// The nearest value of a C integer. A code outside the range stays another one; of a one-byte flag, every value but 0
/// stays a yes.
template <class T>
T Nearest(std::int64_t v) {
  constexpr std::int64_t lowest = std::numeric_limits<T>::min();
  constexpr std::int64_t highest = std::numeric_limits<T>::max();
  if (v > highest || (std::is_unsigned_v<T> && v < lowest)) return static_cast<T>(highest);
  return static_cast<T>(v < lowest ? lowest : v);
}

/// How an argument is read from an element of an array. Integers and flags are read from NumPy's 64-bit integers, to
/// which Python's and NumPy's own integers and booleans convert safely.
template <class T, class Number>
struct Operand {
  static constexpr bool isInput = true;
  static constexpr char type = NPY_INT64;
  static T Get(const char* element, LoopContext&) { return Nearest<T>(*reinterpret_cast<const npy_int64*>(element)); }
};
template <class Number>
struct Operand<double, Number> {
  static constexpr bool isInput = true;
  static constexpr char type = std::is_same_v<Number, double> ? NPY_DOUBLE : NPY_FLOAT;
  static double Get(const char* element, LoopContext&) { return *reinterpret_cast<const Number*>(element); }
};
template <class Number>
struct Operand<StopRequest*, Number> {
  static constexpr bool isInput = false;
  static constexpr char type = NPY_NOTYPE;
  static StopRequest* Get(const char*, LoopContext& context) { return &context.request; }
};
template <class Number>
struct Operand<DoubleVector&, Number> {
  static constexpr bool isInput = false;
  static constexpr char type = NPY_NOTYPE;
  static DoubleVector& Get(const char*, LoopContext& context) {
    context.sizes.clear();
    return context.sizes;
  }
};

/// A ufunc: its functions stay where they are as long as NumPy has it.
struct Ufunc {
  const char* name;
  const char* doc;
  int inputs;
  int outputs;
  std::vector<PyUFuncGenericFunction> loops;
  const char* types;  // of the operands of each loop
  void (*function)();
  std::vector<void*> data;  // one for each loop: this ufunc
};

namespace detail {

template <class Number, class R, class... P>
struct Loop {
  // What takes a request to stop can take long.
  static constexpr npy_intp elementsPerQuestion = (std::is_same_v<P, StopRequest*> || ...) ? 1 : 64;
  static constexpr double noAnswer = std::numeric_limits<double>::quiet_NaN();
  static constexpr std::size_t count = sizeof...(P);
  static constexpr std::array<bool, count> isInput{Operand<P, Number>::isInput...};
  static constexpr std::size_t inputs = (0 + ... + std::size_t{Operand<P, Number>::isInput});
  static constexpr std::size_t outputs = std::is_void_v<R> ? 2 : 1;

  /// Where the operands of the present element are.
  using Elements = std::array<char*, inputs + outputs>;

  /// The place of each argument among the inputs.
  static constexpr std::array<std::size_t, count> Places() {
    std::array<std::size_t, count> places{};
    std::size_t next = 0;
    for (std::size_t i = 0; i < count; ++i)
      if (isInput[i]) places[i] = next++;
    return places;
  }

  static void Store(char* const* elements, std::size_t output, double value) {
    *reinterpret_cast<Number*>(elements[inputs + output]) = static_cast<Number>(value);
  }

  template <std::size_t... I>
  static void CallOne(R (*function)(P...), char* const* elements, LoopContext& context, std::index_sequence<I...>) {
    constexpr std::array<std::size_t, count> places = Places();
    if constexpr (std::is_void_v<R>) {
      function(Operand<P, Number>::Get(elements[places[I]], context)...);
      for (std::size_t output = 0; output < outputs; ++output)
        Store(elements, output, context.sizes.size() == outputs ? context.sizes[output] : noAnswer);
    } else {
      Store(elements, 0, function(Operand<P, Number>::Get(elements[places[I]], context)...));
    }
  }

  static void Advance(Elements& elements, const npy_intp* strides) {
    for (std::size_t i = 0; i < elements.size(); ++i) elements[i] += strides[i];
  }

  // Answers from element `n` on, as far as the next question to the interpreter.
  static void CallSome(R (*function)(P...), Elements& elements, const npy_intp* strides, npy_intp& n, npy_intp count,
                       LoopContext& context) {
    for (const npy_intp end = std::min(count, n + elementsPerQuestion); n < end; ++n, Advance(elements, strides))
      CallOne(function, elements.data(), context, std::index_sequence_for<P...>());
  }

  static void Run(char** operands, const npy_intp* dimensions, const npy_intp* strides, void* data) {
    const auto function = reinterpret_cast<R (*)(P...)>(static_cast<const Ufunc*>(data)->function);
    const npy_intp count = dimensions[0];
    Elements elements;
    std::copy(operands, operands + elements.size(), elements.begin());
    const FloatingPointFlags flags;
    LoopContext context;
    npy_intp n = 0;
    try {
      while (n < count && !context.interrupts.ShouldStop()) CallSome(function, elements, strides, n, count, context);
    } catch (const std::exception&) {  // the only one that functions throw is std::bad_alloc
      RunOutOfMemory();
    }
    for (; n < count; ++n, Advance(elements, strides))
      for (std::size_t output = 0; output < outputs; ++output) Store(elements.data(), output, noAnswer);
    context.interrupts.RaiseLater();
  }

  /// The types of the operands, as NumPy numbers them.
  static constexpr std::array<char, inputs + outputs> Types() {
    std::array<char, inputs + outputs> types{};
    constexpr std::array<char, count> all{Operand<P, Number>::type...};
    std::size_t next = 0;
    for (std::size_t i = 0; i < count; ++i)
      if (isInput[i]) types[next++] = all[i];
    while (next < types.size()) types[next++] = Operand<double, Number>::type;
    return types;
  }
};

template <class... Loops>
constexpr auto JoinedTypes() {
  std::array<char, (0 + ... + Loops::Types().size())> joined{};
  std::size_t next = 0;
  const auto append = [&](const auto& types) {
    for (const char type : types) joined[next++] = type;
  };
  (append(Loops::Types()), ...);
  return joined;
}

template <class... Loops>
constexpr auto joinedTypes = JoinedTypes<Loops...>();

}  // namespace detail

/// A ufunc with one loop for each of the number types, the preferred one first.
template <class... Numbers, class R, class... P>
Ufunc UfuncOf(const char* name, R (*function)(P...), const char* doc) {
  using First = detail::Loop<double, R, P...>;
  return {name,
          doc,
          static_cast<int>(First::inputs),
          static_cast<int>(First::outputs),
          {&detail::Loop<Numbers, R, P...>::Run...},
          detail::joinedTypes<detail::Loop<Numbers, R, P...>...>.data(),
          reinterpret_cast<void (*)()>(function),
          {}};
}

/// Puts the ufuncs into the dictionary under their names. They must live as long as the process. False where Python has
/// an error set.
bool AddUfuncs(PyObject* dictionary, std::vector<Ufunc>& ufuncs);

}  // namespace kelpython

#endif
