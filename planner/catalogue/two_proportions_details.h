#ifndef KELPOWER_PLANNER_CATALOGUE_TWO_PROPORTIONS_DETAILS_H
#define KELPOWER_PLANNER_CATALOGUE_TWO_PROPORTIONS_DETAILS_H

#include "model/details.h"
#include "model/inputs.h"
#include "proportions/independent_large_sample.h"

// What is behind the answers for two independent proportions: an interval, and the tests whose answers have most figures.
namespace planner {

Details IntervalDetailsOfTwoProportions(const Inputs& in);

bool HasEqualGroups(const Inputs& in);

void AddZ(Details& details, const kelpower::proportions::LargeSampleTest& test, const Inputs& in);
void AddArcsine(Details& details, const kelpower::proportions::LargeSampleTest& test, const Inputs& in);

}  // namespace planner

#endif
