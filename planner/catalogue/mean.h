#ifndef KELPOWER_PLANNER_CATALOGUE_MEAN_H
#define KELPOWER_PLANNER_CATALOGUE_MEAN_H

#include <vector>

#include "model/inputs.h"
#include "model/test.h"

// What the parts of the t test of a mean share.
namespace planner {

double EffectOfMean(const Inputs& in);

std::vector<Route> RoutesOfMean();
std::vector<Unknown> UnknownsOfMean();

}  // namespace planner

#endif
