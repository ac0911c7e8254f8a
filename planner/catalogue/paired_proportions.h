#pragma once

#include <vector>

#include "model/chart.h"

namespace planner {

std::vector<Axis> AxesOfPairedProportions();

}  // namespace planner
