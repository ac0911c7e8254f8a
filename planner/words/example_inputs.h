#ifndef KELPOWER_PLANNER_WORDS_EXAMPLE_INPUTS_H
#define KELPOWER_PLANNER_WORDS_EXAMPLE_INPUTS_H

#include "model/test.h"

namespace planner {

/// The inputs that the arguments of an example give.
InputValues InputsOf(const Test& test, const Example& example);

}  // namespace planner

#endif
