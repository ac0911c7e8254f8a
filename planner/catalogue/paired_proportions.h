#ifndef KELPOWER_PLANNER_CATALOGUE_PAIRED_PROPORTIONS_H
#define KELPOWER_PLANNER_CATALOGUE_PAIRED_PROPORTIONS_H

#include <vector>

#include "model/chart.h"

namespace planner {

std::vector<Axis> AxesOfPairedProportions();

}  // namespace planner

#endif
