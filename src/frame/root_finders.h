#ifndef KELPOWER_FRAME_ROOT_FINDERS_H
#define KELPOWER_FRAME_ROOT_FINDERS_H

#include "frame/function_view.h"
#include "kelpower.h"

namespace kelpower {

/// What a search brings to zero: negative below the wanted root, positive above it, such as the power at `x` minus the
/// target power. It captures its fixed inputs, and no evaluation may change what the next one sees.
using RootObjective = FunctionView<double(double x)>;

/// Finds the root of a continuous objective by doubling `upper` until the bracket [lower, upper] holds it, then
/// bisecting until half the bracket is below `tolerance`.
///
/// Evaluates at `upper` first, then at `lower`. Returns `upper` when the objective is within 1e-14 of zero there,
/// `lower` when it is not negative there, and otherwise the lower end of the last bracket: a point at which the
/// objective is at most zero, never one above the root.
/// The result is missing when an end is NaN or infinite, when no bracket is found below half the largest double, and
/// when `stop` answers true; it is asked before each widening and each bisection step, never before the first two
/// evaluations. `stop` may be null.
double SolveContinuous(double lower, double upper, double tolerance, RootObjective objective, StopRequest* stop);

/// Like `SolveContinuous`, for an unknown that is a count and an objective that jumps: the steps of the bisection are
/// whole numbers, and from its lower end the search walks up in ones until the objective is not negative. It walks
/// only when the last point evaluated was negative. `stop` is asked before each step of the walk too.
double SolveInteger(double lower, double upper, RootObjective objective, StopRequest* stop);

/// Repeats `SolveInteger` on [1, previous result], for an objective that crosses zero several times, and returns the
/// smallest value seen, `upper` included. `stop` is asked before each pass; a true answer gives `upper` as it came.
/// A missing or non-finite `upper` is returned after one question to `stop` and no search.
double SolveIntegerSmallest(double upper, RootObjective objective, StopRequest* stop);

}  // namespace kelpower

#endif
