#ifndef KELPOWER_PLANNER_CATALOGUE_PAIRED_PROPORTIONS_H
#define KELPOWER_PLANNER_CATALOGUE_PAIRED_PROPORTIONS_H

#include <vector>

#include "model/chart.h"
#include "model/details.h"
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
std::vector<Unknown> UnknownsOfPairedProportions();
std::vector<Condition> ConditionsOfPairedProportions();
std::vector<Condition> SizeExistsForPairedProportions();
std::vector<Derived> FiguresOfPairedProportions();
std::vector<Axis> AxesOfPairedProportions();

Details IntervalDetailsOfPairedProportions(const Inputs& in);

}  // namespace planner

#endif
