#ifndef KELPOWER_PLANNER_CATALOGUE_ANOVA_H
#define KELPOWER_PLANNER_CATALOGUE_ANOVA_H

#include <vector>

#include "model/test.h"

// The routes of the overall F test, which its description needs.
namespace planner {

std::vector<Route> RoutesOfAnova();
std::vector<Route> IntervalRoutesOfAnova();

}  // namespace planner

#endif
