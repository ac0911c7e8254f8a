#ifndef KELPOWER_PLANNER_CATALOGUE_PAIRWISE_H
#define KELPOWER_PLANNER_CATALOGUE_PAIRWISE_H

#include <vector>

#include "model/inputs.h"
#include "model/test.h"

// What the description of the test of a pair of groups and its routes share.
namespace planner {

/// The mean with the smaller number less the other one.
Numbers ContrastOfPair(const Inputs& in);

/// The difference of the means of the pair over the standard deviation.
double EffectOfPair(const Inputs& in);

/// The same, whichever way it is given.
double EffectOfPairwise(const Inputs& in);

/// The level of the one comparison.
double LevelOfPair(const Inputs& in);

std::vector<Route> RoutesOfPairwise();

}  // namespace planner

#endif
