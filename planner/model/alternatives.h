#ifndef KELPOWER_PLANNER_MODEL_ALTERNATIVES_H
#define KELPOWER_PLANNER_MODEL_ALTERNATIVES_H

#include <vector>

#include "model/parameter.h"

namespace planner {

/// The values that an input takes in turn; a single one where it is held fixed.
struct Alternatives {
  const Parameter* parameter;
  std::vector<Value> values;
};

}  // namespace planner

#endif
