#ifndef KELPOWER_PROPORTIONS_EXACT_SEARCH_H
#define KELPOWER_PROPORTIONS_EXACT_SEARCH_H

#include "frame/function_view.h"
#include "kelpower.h"

namespace kelpower {

/// The largest number of trials that the exact tests count up to. Their power at a larger size is missing.
constexpr double kLargestCount = 2147483647;

/// Asks `stop` once for each of `steps` steps of a computation, until an answer is true. False when `stop` is null.
bool StopsWithin(StopRequest* stop, double steps);

using ExactPower = FunctionView<double(double size, StopRequest* stop)>;

/// The smallest size found at which an exact test reaches the power `target`. Missing when `stop` answers true, and
/// when the search has grown beyond `kLargestCount`.
double SolveExactSize(double target, ExactPower power, StopRequest* stop);

}  // namespace kelpower

#endif
