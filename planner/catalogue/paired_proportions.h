#ifndef KELPOWER_PLANNER_CATALOGUE_PAIRED_PROPORTIONS_H
#define KELPOWER_PLANNER_CATALOGUE_PAIRED_PROPORTIONS_H

#include <vector>

#include "model/chart.h"
#include "model/inputs.h"
#include "model/test.h"
#include "proportions/mcnemar.h"

// What the parts of McNemar's test share.
namespace planner {

kelpower::proportions::McNemarDesign McNemarDesignOf(const Inputs& in);

/// The discordant pairs, whichever way they are given.
kelpower::proportions::DiscordantPairs DiscordantPairsOf(const Inputs& in);

std::vector<Route> RoutesOfPairedProportions();
std::vector<Route> IntervalRoutesOfPairedProportions();
std::vector<Condition> ConditionsOfPairedProportions();
std::vector<Condition> SizeExistsForPairedProportions();
std::vector<Derived> FiguresOfPairedProportions();

Axis DifferenceAxisOfPairedProportions();
Axis RatioAxisOfPairedProportions();
Axis OddsRatioAxisOfPairedProportions();
Axis CorrelationAxisOfPairedProportions();

}  // namespace planner

#endif
