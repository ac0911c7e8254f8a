// The searches of increasing objectives as they are defined: the plain bisection, evaluated at every point. A second
// build of the library with this in place of the fast ones is what they are compared with.

#include "frame/increasing_search.h"
#include "frame/root_finders.h"

namespace kelpower {

Answer SolveIncreasingPower(double lower, double upper, double tolerance, FunctionView<double(double)> powerAt,
                            double target, Stop stop) {
  return SolvePower(lower, upper, tolerance, powerAt, target, stop);
}

Answer SolveHalfWidth(double lower, double upper, double tolerance, const HalfWidthEquation& equation) {
  return SolveContinuous(lower, upper, tolerance, [&](double x) { return equation.Excess(x); }, {});
}

}  // namespace kelpower
