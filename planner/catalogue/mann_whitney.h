#ifndef KELPOWER_PLANNER_CATALOGUE_MANN_WHITNEY_H
#define KELPOWER_PLANNER_CATALOGUE_MANN_WHITNEY_H

#include "model/inputs.h"
#include "ranks/mann_whitney.h"

// What the parts of the Wilcoxon-Mann-Whitney test share.
namespace planner {

kelpower::ranks::TwoGroupTest MannWhitneyTestOf(const Inputs& in);

/// The probability that a value of the first group exceeds one of the second, given or from the shift.
double SuperiorityOf(const Inputs& in);

}  // namespace planner

#endif
