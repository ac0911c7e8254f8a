#ifndef KELPOWER_PLANNER_CATALOGUE_PAIRED_MEANS_H
#define KELPOWER_PLANNER_CATALOGUE_PAIRED_MEANS_H

#include <vector>

#include "catalogue/mean_margins.h"
#include "means/paired.h"
#include "model/inputs.h"
#include "model/test.h"

// What the parts of the paired t test share.
namespace planner {

/// The first mean less the second.
double DifferenceOfPairedMeans(const Inputs& in);

/// The standard deviation of the differences.
double SdOfPairedDifferences(const Inputs& in);

/// The mean of the differences over their standard deviation.
double EffectSizeOfPairedMeans(const Inputs& in);

/// The same, whichever way it is given.
double EffectOfPairedMeans(const Inputs& in);

/// Where the standard deviation of the differences is given, it stands for a first measurement, and the second one has
/// no spread.
kelpower::means::PairedSpread SpreadOfPairedMeans(const Inputs& in);

std::vector<Route> RoutesOfPairedMeans();
/// Those against margins.
std::vector<Route> RoutesOfPairedMeansWithMargins();
std::string HypothesisOfPairedMeans(const Inputs& in);
Details DetailsOfPairedMeansWithMargins(const Inputs& in);
std::vector<Unknown> UnknownsOfPairedMeans();
std::vector<Condition> ConditionsOfPairedMeans();
std::vector<Condition> SizeExistsForPairedMeans();

}  // namespace planner

#endif
