#pragma once

#include "planner/inputs.h"
#include "planner/parameter.h"

// Parameters and conditions that the tests of several groups share.
namespace planner {

Parameter GroupMeans();
Parameter WithinSd();
Parameter GroupSizes();
Parameter AllocationRatios();
Parameter GroupCount();

/// Whether observations are left over once every group has its mean.
bool LeavesErrorDegrees(const Inputs& in);
extern const char* const noErrorDegrees;

}  // namespace planner
