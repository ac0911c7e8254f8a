#ifndef KELPOWER_PLANNER_CATALOGUE_PAIRED_MEANS_H
#define KELPOWER_PLANNER_CATALOGUE_PAIRED_MEANS_H

#include <vector>

#include "means/paired.h"
#include "model/inputs.h"
#include "model/test.h"

// What the description of the test of paired means, its routes and its conditions share.
namespace planner {

/// Where the standard deviation of the differences is given, it stands for a first measurement, and the second one has
/// no spread.
kelpower::means::PairedSpread SpreadOfPairedMeans(const Inputs& in);

/// The mean of the differences over their standard deviation.
double EffectSizeOfPairedMeans(const Inputs& in);

std::vector<Route> RoutesOfPairedMeans();
std::vector<Condition> ConditionsOfPairedMeans();
std::vector<Condition> SizeExistsForPairedMeans();

}  // namespace planner

#endif
