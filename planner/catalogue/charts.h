#ifndef KELPOWER_PLANNER_CATALOGUE_CHARTS_H
#define KELPOWER_PLANNER_CATALOGUE_CHARTS_H

#include <vector>

#include "model/chart.h"

// The charts of the tests, each in the file <test>_charts.cpp. Those of correlations are in correlation.h.
namespace planner {

std::vector<Chart> ChartsOfAnova();
std::vector<Chart> ChartsOfContrast();
std::vector<Chart> ChartsOfPairwise();
std::vector<Chart> ChartsOfMean();
std::vector<Chart> ChartsOfPairedMeans();
std::vector<Chart> ChartsOfTwoMeans();
std::vector<Chart> ChartsOfProportion();
std::vector<Chart> ChartsOfPairedProportions();
std::vector<Chart> ChartsOfTwoProportions();
std::vector<Chart> ChartsOfRegression();

}  // namespace planner

#endif
