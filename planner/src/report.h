#pragma once

#include "planner/inputs.h"
#include "planner/solve.h"

namespace planner {

/// What a route and its check at the rounded sizes gave.
struct Findings {
  Numbers sizes;    // given or found
  bool sizesFound;  // whether they are the answer
  double value;     // power or half-width at these sizes
};

/// The report of the findings: inputs, results and sentence.
Report MakeReport(const Test& test, const Route& route, const Inputs& inputs, const Findings& findings);

}  // namespace planner
