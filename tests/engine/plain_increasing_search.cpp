// The searches of increasing objectives as they are defined: the plain bisection, evaluated at every point. A second
// build of the library with this in place of the fast ones is what they are compared with.

#include "frame/increasing_search.h"
#include "frame/rejection.h"
#include "frame/root_finders.h"

namespace kelpower {

double SolveIncreasingPower(double lower, double upper, double tolerance, FunctionView<double(double)> powerAt,
                            double target, StopRequest* stop) {
  return SolveContinuous(
      lower, upper, tolerance, [&](double x) { return powerAt(x) - target; }, stop);
}

double SolveHalfWidth(double lower, double upper, double tolerance, const HalfWidthEquation& equation) {
  const auto excess = [&](double x) {
    const double t = IntervalQuantileT(equation.alpha, equation.dfAt(x));
    return equation.slope * x - equation.weight * (t * t);
  };
  return SolveContinuous(lower, upper, tolerance, excess, nullptr);
}

}  // namespace kelpower
