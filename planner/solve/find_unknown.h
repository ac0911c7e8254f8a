#ifndef KELPOWER_PLANNER_SOLVE_FIND_UNKNOWN_H
#define KELPOWER_PLANNER_SOLVE_FIND_UNKNOWN_H

#include <optional>

#include "frame/function_view.h"
#include "model/inputs.h"
#include "model/parameter.h"
#include "model/unknown.h"

namespace planner {

/// Where the target is reached, and what the power or half-width is there.
struct Found {
  double at;
  double value;
};

/// The end of a search: where the target is reached, or else what is known of it.
struct UnknownSearch {
  std::optional<Found> reached;
  std::optional<Found> nearest;  // the value that comes nearest to the target
  bool isReachedEverywhere = false;
};

/// Finds the smallest change from the end at which the target is missed to where it is reached; of an uneven power, to
/// where it is reached for good. `valueAt` gives the power or half-width of the design with the unknown at a place, NaN
/// where there is none. It takes some 20 values, of an uneven power some hundred more.
UnknownSearch FindUnknown(const Unknown& unknown, const Parameter& parameter, const Inputs& inputs, double target,
                          bool isUneven, kelpower::FunctionView<double(double)> valueAt);

}  // namespace planner

#endif
