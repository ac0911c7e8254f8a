#ifndef KELPOWER_PLANNER_CATALOGUE_TWO_CORRELATIONS_H
#define KELPOWER_PLANNER_CATALOGUE_TWO_CORRELATIONS_H

#include <vector>

#include "correlation/two_correlations.h"
#include "model/inputs.h"
#include "model/test.h"

// What the parts of the test of two independent correlations share.
namespace planner {

/// The first Fisher's z less the second.
double EffectQ(const Inputs& in);

kelpower::correlation::GroupSizes SizesOfGroups(const Inputs& in);

std::vector<Unknown> UnknownsOfTwoCorrelations();
std::vector<Condition> SizeExistsForTwoCorrelations();

}  // namespace planner

#endif
