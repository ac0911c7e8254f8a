#pragma once

#include <vector>

#include "model/chart.h"

namespace planner {

std::vector<Chart> ChartsOfPairedProportions();

}  // namespace planner
