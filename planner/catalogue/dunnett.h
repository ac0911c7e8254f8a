#ifndef KELPOWER_PLANNER_CATALOGUE_DUNNETT_H
#define KELPOWER_PLANNER_CATALOGUE_DUNNETT_H

#include <vector>

#include "model/inputs.h"
#include "model/test.h"

// What the parts of the description of Dunnett's test share.
namespace planner {

/// The number of the group that one comparison is about, counted from 0, the control being the first.
std::size_t AskedGroup(const Inputs& in);

/// The means in standard deviations, the control's first.
Numbers MeansOfDunnett(const Inputs& in);

/// The difference of the group asked about from the control in standard deviations.
double EffectOfGroup(const Inputs& in);

/// Of the differences from the control the one that decides: the largest for any, the least for all.
double DecidingEffect(const Inputs& in);

std::vector<Route> RoutesOfDunnett();
std::vector<Condition> ConditionsOfDunnett();
std::vector<Condition> SizeExistsForDunnett();
void AddWordsOfDunnett(Test& test);
Details DetailsOfDunnett(Question question, const Inputs& in);

}  // namespace planner

#endif
