#ifndef KELPOWER_FRAME_INCREASING_SEARCH_H
#define KELPOWER_FRAME_INCREASING_SEARCH_H

#include "frame/answer.h"
#include "frame/function_view.h"
#include "frame/half_width_equation.h"
#include "frame/stop.h"

namespace kelpower {

/// The size at which a power that never falls as the size grows reaches `target`: bit for bit what `SolveContinuous`
/// finds for powerAt(size) - target, with the same questions to `stop`, in about a quarter of the evaluations.
///
/// The root is located by interpolation first. The bisection is then walked as it is stated, but of its points only
/// those near the root are evaluated. At the others the sign follows from the power not falling.
///
/// Each caller says why its power never falls on [lower, infinity). Where there is no test yet, a number below every
/// power counts as low. Computed powers may be off by rounding errors, far below 1e-13.
Answer SolveIncreasingPower(double lower, double upper, double tolerance, FunctionView<double(double size)> powerAt,
                            double target, Stop stop);

/// The size that solves `equation`: what `SolveContinuous` finds for its excess. Where that grows with the size, it is
/// found in the same way as above.
Answer SolveHalfWidth(double lower, double upper, double tolerance, const HalfWidthEquation& equation);

}  // namespace kelpower

#endif
