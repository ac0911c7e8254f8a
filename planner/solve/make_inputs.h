#ifndef KELPOWER_PLANNER_SOLVE_MAKE_INPUTS_H
#define KELPOWER_PLANNER_SOLVE_MAKE_INPUTS_H

#include "model/inputs.h"
#include "model/test.h"

namespace planner {

/// The inputs of a question: the values with defaults filled in and single numbers spread over the groups. Throws an
/// InputError when the inputs disagree about the number of groups. The values have been checked.
Inputs MakeInputs(const Test& test, const InputValues& values, StopRequest* stop);

}  // namespace planner

#endif
