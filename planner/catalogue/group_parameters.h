#ifndef KELPOWER_PLANNER_CATALOGUE_GROUP_PARAMETERS_H
#define KELPOWER_PLANNER_CATALOGUE_GROUP_PARAMETERS_H

#include "model/chart.h"
#include "model/test.h"

// What the tests of several groups share.
namespace planner {

Parameter GroupMeans();
Parameter WithinSd();
Parameter GroupSizes();
Parameter AllocationRatios();
Parameter GroupCount();

// The overall effect of groups.
Parameter EffectF();
Parameter EtaSquared();

/// The conditions on two groups that `pair` names.
Condition PairDiffers();
Condition PairExists();

/// The condition that more observations than groups leave something to estimate the standard deviation from.
Condition ErrorDegrees();

}  // namespace planner

#endif
