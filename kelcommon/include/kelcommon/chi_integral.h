#ifndef KELCOMMON_CHI_INTEGRAL_H
#define KELCOMMON_CHI_INTEGRAL_H

#include <limits>
#include <memory>
#include <type_traits>

#include "kelcommon/api.h"

namespace kelcommon {

/// A function of one number that is borrowed for the duration of a call. It must not throw.
class ChiFunction {
public:
  template <typename Callable, typename = std::enable_if_t<
                                   !std::is_same_v<std::remove_cv_t<std::remove_reference_t<Callable>>, ChiFunction>>>
  ChiFunction(const Callable& callable)  // NOLINT(google-explicit-constructor): lambdas are passed as they stand
      : target_(std::addressof(callable)),
        call_([](const void* target, double u) -> double { return (*static_cast<const Callable*>(target))(u); }) {}

  double operator()(double u) const { return call_(target_, u); }

private:
  const void* target_;
  double (*call_)(const void*, double);
};

/// Over which part of the distribution a mean is taken.
struct ChiRange {
  /// Only what lies below counts.
  double limit = std::numeric_limits<double>::infinity();
  /// Points where g has a kink, or near which it changes within a small part of the range; in any order, 30 of them
  /// at most.
  const double* breaks = nullptr;
  int breakCount = 0;
};

/// The mean E[g(U); U < limit] of a bounded function over U, the square root of a chi-square variable divided by its
/// degrees of freedom: the estimate of a standard deviation in units of the true one.
///
/// The error is below 1e-14 where g is made of normal probabilities, and smooth but for the breaks. Where g has one sign,
/// means from 1e-12 on keep a relative accuracy of 1e-12. g is asked some 60 times for a smooth one, and at most some
/// 15,000 times whatever it is. Method, source and measured accuracy stand in docs/accuracy.md.
/// @param g finite for u >= 0; where it is NaN, so is the mean
/// @param df degrees of freedom, above 0; infinity gives g(1). Otherwise, and for a NaN limit, the mean is NaN
/// @param range the part that counts; with a limit of 0 or below the mean is 0, and g is not asked
/// @return the mean; 1 may be exceeded in the last digits where g is 1
KELCOMMON_API double MeanOverChi(ChiFunction g, double df, const ChiRange& range = {}) noexcept;

}  // namespace kelcommon

#endif
