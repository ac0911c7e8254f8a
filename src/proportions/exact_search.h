#ifndef KELPOWER_PROPORTIONS_EXACT_SEARCH_H
#define KELPOWER_PROPORTIONS_EXACT_SEARCH_H

#include "frame/answer.h"
#include "frame/function_view.h"
#include "frame/stop.h"

namespace kelpower::proportions {

/// A power at a size, or a number that says why there is none. It hands its questions to `stop`.
using ExactPower = FunctionView<double(double size, Stop stop)>;

/// The smallest size found at which an exact test reaches the power `target`. The power of an exact test is a sawtooth
/// in its size, so smaller ones may reach it. Uncountable when the search has grown beyond `largestCount`.
Answer SolveExactSize(double target, ExactPower power, Stop stop);

}  // namespace kelpower::proportions

#endif
