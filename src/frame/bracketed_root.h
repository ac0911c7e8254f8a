#ifndef KELPOWER_FRAME_BRACKETED_ROOT_H
#define KELPOWER_FRAME_BRACKETED_ROOT_H

#include "frame/answer.h"
#include "frame/function_view.h"

namespace kelpower {

/// The root of a function that changes its sign once between two finite ends, to the last digits of a double: one of
/// the two neighbours between which the sign changes, or a point within 4e-16 of it relative to its size. Not reached
/// where the signs at the ends are equal or a value is NaN.
///
/// Chandrupatla's method, bisection with inverse quadratic interpolation where that is safe (Chandrupatla 1997,
/// Advances in Engineering Software 28, 145-149). Smooth functions take about ten evaluations, no function more than
/// 2,200.
Answer BracketedRoot(FunctionView<double(double x)> f, double lower, double upper);

}  // namespace kelpower

#endif
