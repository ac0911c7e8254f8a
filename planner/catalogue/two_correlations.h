#ifndef KELPOWER_PLANNER_CATALOGUE_TWO_CORRELATIONS_H
#define KELPOWER_PLANNER_CATALOGUE_TWO_CORRELATIONS_H

#include "correlation/two_correlations.h"
#include "model/inputs.h"

// What the parts of the test of two independent correlations share.
namespace planner {

/// The first Fisher's z less the second.
double EffectQ(const Inputs& in);

kelpower::correlation::GroupSizes SizesOfGroups(const Inputs& in);

}  // namespace planner

#endif
