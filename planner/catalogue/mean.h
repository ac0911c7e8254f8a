#ifndef KELPOWER_PLANNER_CATALOGUE_MEAN_H
#define KELPOWER_PLANNER_CATALOGUE_MEAN_H

#include <vector>

#include "catalogue/mean_margins.h"
#include "model/inputs.h"
#include "model/test.h"

// What the parts of the t test of a mean share.
namespace planner {

double EffectOfMean(const Inputs& in);

/// The mean expected less the test value.
inline double DifferenceOfMean(const Inputs& in) { return in.Number("mean") - in.Number("test-value"); }

std::vector<Route> RoutesOfMean();
/// Those against margins.
std::vector<Route> RoutesOfMeanWithMargins();
std::vector<Condition> ConditionsOfMean();
std::vector<Condition> SizeExistsForMean();
std::string HypothesisOfMean(const Inputs& in);
Details DetailsOfMeanWithMargins(const Inputs& in);
std::vector<Unknown> UnknownsOfMean();

}  // namespace planner

#endif
