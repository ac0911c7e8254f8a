#ifndef KELPOWER_FRAME_INCREASING_SEARCH_H
#define KELPOWER_FRAME_INCREASING_SEARCH_H

#include "frame/function_view.h"
#include "kelpower.h"

namespace kelpower {

/// The size at which a power that never falls as the size grows reaches `target`: bit for bit what `SolveContinuous`
/// finds for powerAt(size) - target, with the same questions to `stop`, in about a quarter of the evaluations.
///
/// The root is located by interpolation first. The bisection is then walked as it is stated, but of its points only
/// those near the root are evaluated: the sign at the others follows from the power not falling.
///
/// Each caller says why its power never falls on [lower, infinity). A power that is missing or -1 where there is no
/// test yet counts as low. Computed powers may be off by rounding errors, far below 1e-13.
double SolveIncreasingPower(double lower, double upper, double tolerance, FunctionView<double(double size)> powerAt,
                            double target, StopRequest* stop);

/// The equation w = t * standard error of a half-width w, squared and brought to the form
///   slope * size = weight * t(size)^2
/// where t is the quantile of Student's t for an interval at level 1 - alpha.
struct HalfWidthEquation {
  double slope;
  double weight;
  double alpha;
  FunctionView<double(double size)> dfAt;  ///< the degrees of freedom of t
  bool dfGrows = true;                     ///< with the size, on [lower, infinity) of the search
};

/// The size that solves `equation`: what `SolveContinuous` finds for the left side less the right side. Where that
/// difference grows with the size, it is found in the same way as above.
double SolveHalfWidth(double lower, double upper, double tolerance, const HalfWidthEquation& equation);

}  // namespace kelpower

#endif
