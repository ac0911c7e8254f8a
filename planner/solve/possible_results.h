#ifndef KELPOWER_PLANNER_SOLVE_POSSIBLE_RESULTS_H
#define KELPOWER_PLANNER_SOLVE_POSSIBLE_RESULTS_H

#include <vector>

#include "solve/results.h"

namespace planner {

/// A result that answers of a route may have.
struct PossibleResult {
  ResultColumn column;
  bool isOptional;  // whether some answers lack it
};

/// All results that the route's answers may have, whatever is given of the circumstances of the study.
std::vector<PossibleResult> PossibleResults(const Test& test, const Route& route);

}  // namespace planner

#endif
