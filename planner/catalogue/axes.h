#ifndef KELPOWER_PLANNER_CATALOGUE_AXES_H
#define KELPOWER_PLANNER_CATALOGUE_AXES_H

#include "model/chart.h"

// What the axes of several tests share.
namespace planner {

/// The sum of the sizes in `n`.
double TotalSize(const Inputs& in);

/// An axis of the difference of two entries of `means`, which moves the first.
Axis MeanDifferenceAxis();

}  // namespace planner

#endif
