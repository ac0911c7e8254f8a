#ifndef KELPOWER_PLANNER_CATALOGUE_CONTRAST_H
#define KELPOWER_PLANNER_CATALOGUE_CONTRAST_H

#include <vector>

#include "model/inputs.h"
#include "model/test.h"

// What the description of the test of a contrast and its routes share.
namespace planner {

/// The contrast of the means over the standard deviation.
double EffectOfContrast(const Inputs& in);

std::vector<Route> RoutesOfContrast();

}  // namespace planner

#endif
