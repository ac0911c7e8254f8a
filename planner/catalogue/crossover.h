#ifndef KELPOWER_PLANNER_CATALOGUE_CROSSOVER_H
#define KELPOWER_PLANNER_CATALOGUE_CROSSOVER_H

#include <vector>

#include "catalogue/mean_margins.h"
#include "model/test.h"

// What the parts of the 2x2 crossover share.
namespace planner {

/// The test at the sizes of the design.
MeanQuestion QuestionOfCrossover(const Inputs& in);

std::vector<Route> RoutesOfCrossover();

}  // namespace planner

#endif
