#ifndef KELPOWER_PLANNER_CATALOGUE_PROPORTION_H
#define KELPOWER_PLANNER_CATALOGUE_PROPORTION_H

#include <vector>

#include "model/inputs.h"
#include "model/test.h"
#include "proportions/one_sample_tests.h"

// What the parts of the test of one proportion share.
namespace planner {

kelpower::proportions::OneSampleDesign OneSampleDesignOf(const Inputs& in);
kelpower::proportions::OneSampleProportions OneSampleProportionsOf(const Inputs& in);

std::vector<Route> RoutesOfProportion();
std::vector<Condition> ConditionsOfProportion();
std::vector<Condition> SizeExistsForProportion();
std::vector<Derived> FiguresOfProportion();

}  // namespace planner

#endif
