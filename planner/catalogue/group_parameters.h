#pragma once

#include "model/chart.h"
#include "model/test.h"

// What the tests of several groups share.
namespace planner {

Parameter GroupMeans();
Parameter WithinSd();
Parameter GroupSizes();
Parameter AllocationRatios();
Parameter GroupCount();

/// Observations are left over once every group has its mean.
Condition ErrorDegrees();

}  // namespace planner
