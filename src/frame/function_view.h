#ifndef KELPOWER_FRAME_FUNCTION_VIEW_H
#define KELPOWER_FRAME_FUNCTION_VIEW_H

#include <memory>
#include <type_traits>
#include <utility>

namespace kelpower {

template <typename Signature>
class FunctionView;

/// A callable that is borrowed for the duration of a call. It lets the loops of the library be compiled once. The
/// lambda that says what is particular to a function stays at the place that calls them.
template <typename Result, typename... Args>
class FunctionView<Result(Args...)> {
public:
  /// The empty view, which must not be called.
  FunctionView() = default;

  template <typename Callable,
            typename = std::enable_if_t<!std::is_same_v<std::remove_cv_t<std::remove_reference_t<Callable>>,
                                                        FunctionView>>>
  FunctionView(Callable&& callable)  // NOLINT(google-explicit-constructor): lambdas are passed as they stand
      : target_(const_cast<void*>(static_cast<const void*>(std::addressof(callable)))),
        call_([](void* target, Args... args) -> Result {
          return (*static_cast<std::remove_reference_t<Callable>*>(target))(std::forward<Args>(args)...);
        }) {}

  explicit operator bool() const { return call_ != nullptr; }

  Result operator()(Args... args) const { return call_(target_, std::forward<Args>(args)...); }

private:
  void* target_ = nullptr;
  Result (*call_)(void*, Args...) = nullptr;
};

}  // namespace kelpower

#endif
