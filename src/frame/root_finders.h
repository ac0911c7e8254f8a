#ifndef KELPOWER_FRAME_ROOT_FINDERS_H
#define KELPOWER_FRAME_ROOT_FINDERS_H

#include "frame/answer.h"
#include "frame/function_view.h"
#include "frame/stop.h"

namespace kelpower {

/// What a search brings to zero: negative below the wanted root, positive above it, such as the power at `x` minus the
/// target power. It captures its fixed inputs, and no evaluation may change what the next one sees.
using RootObjective = FunctionView<double(double x)>;

/// A point at which an objective has been evaluated.
struct Evaluated {
  double x;
  double value;
};

/// Finds the root of a continuous objective by doubling `upper` until the bracket [lower, upper] holds it, then
/// bisecting until half the bracket is below `tolerance`.
///
/// Evaluates at `upper` first, then at `lower`. Returns `upper` when the objective is within 1e-14 of zero there,
/// `lower` when it is not negative there, and otherwise the lower end of the last bracket: a point at which the
/// objective is at most zero, never one above the root.
/// The root is not reached when an end is NaN or infinite, and when no bracket is found below half the largest double.
/// `stop` is asked before each widening and each bisection step, never before the first two evaluations.
Answer SolveContinuous(double lower, double upper, double tolerance, RootObjective objective, Stop stop);

/// The same from ends that have been evaluated.
Answer SolveContinuousFrom(const Evaluated& lower, const Evaluated& upper, double tolerance, RootObjective objective,
                           Stop stop);

/// What `SolveContinuous` finds for powerAt(size) - target.
Answer SolvePower(double lower, double upper, double tolerance, FunctionView<double(double size)> powerAt,
                  double target, Stop stop);

/// Like `SolveContinuous`, for an unknown that is a count and an objective that jumps: the steps of the bisection are
/// whole numbers, and from its lower end the search walks up in ones until the objective is not negative. It walks
/// only when the last point evaluated was negative. `stop` is asked before each step of the walk too.
Answer SolveInteger(double lower, double upper, RootObjective objective, Stop stop);

/// Repeats `SolveInteger` on [1, previous result], for an objective that crosses zero several times, and returns the
/// smallest value seen, `upper` included. `stop` is asked before each pass; a true answer gives `upper` as it came.
/// Without a finite `upper` there is one question to `stop` and no search, and `upper` is returned.
Answer SolveIntegerSmallest(Answer upper, RootObjective objective, Stop stop);

}  // namespace kelpower

#endif
