#ifndef KELPOWER_PLANNER_CATALOGUE_CONTRAST_H
#define KELPOWER_PLANNER_CATALOGUE_CONTRAST_H

#include <vector>

#include "model/inputs.h"
#include "model/test.h"

// What the parts of the test of a contrast share.
namespace planner {

/// The coefficients with the last one set so that they sum to zero to the last digit.
Numbers CoefficientsOfContrast(const Inputs& in);

/// The contrast of the means over the standard deviation.
double EffectOfContrastedMeans(const Inputs& in);

/// The same, whichever way it is given.
double EffectOfContrast(const Inputs& in);

std::vector<Route> RoutesOfContrast();
std::vector<Condition> ConditionsOfContrast();
std::vector<Condition> SizeExistsForContrast();

}  // namespace planner

#endif
