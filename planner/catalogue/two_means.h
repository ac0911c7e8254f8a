#ifndef KELPOWER_PLANNER_CATALOGUE_TWO_MEANS_H
#define KELPOWER_PLANNER_CATALOGUE_TWO_MEANS_H

#include <vector>

#include "model/test.h"

// The routes of the test of two means, which its description needs.
namespace planner {

std::vector<Route> RoutesOfTwoMeans();

}  // namespace planner

#endif
