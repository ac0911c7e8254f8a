#ifndef KELPOWER_PLANNER_CATALOGUE_ORDINAL_H
#define KELPOWER_PLANNER_CATALOGUE_ORDINAL_H

#include <vector>

#include "model/inputs.h"
#include "model/test.h"
#include "ranks/ordinal.h"

// What the parts of the test of ordered categories share.
namespace planner {

kelpower::ranks::OrdinalTest OrdinalTestOf(const Inputs& in);

/// A view of the probabilities in `in`.
kelpower::ranks::OrderedGroups OrderedGroupsOf(const Inputs& in);

/// The probability that a value of the first group exceeds one of the second, less one half.
double OrdinalExcess(const Inputs& in);

std::vector<Route> RoutesOfOrdinal();
std::vector<Condition> ConditionsOfOrdinal();
std::vector<Condition> SizeExistsForOrdinal();
std::vector<Unknown> UnknownsOfOrdinal();
Details DetailsOfOrdinal(Question question, const Inputs& in);
void AddWordsOfOrdinal(Test& test);

}  // namespace planner

#endif
