#ifndef KELPOWER_PLANNER_CATALOGUE_PROPORTION_H
#define KELPOWER_PLANNER_CATALOGUE_PROPORTION_H

#include <vector>

#include "model/details.h"
#include "model/inputs.h"
#include "model/test.h"
#include "proportions/one_sample_tests.h"

// What the parts of the test of one proportion share.
namespace planner {

kelpower::proportions::OneSampleDesign OneSampleDesignOf(const Inputs& in);
kelpower::proportions::OneSampleProportions OneSampleProportionsOf(const Inputs& in);

std::vector<Route> RoutesOfProportion();
std::vector<Unknown> UnknownsOfProportion();
std::vector<Condition> ConditionsOfProportion();
std::vector<Condition> SizeExistsForProportion();
std::vector<Derived> FiguresOfProportion();

Details IntervalDetailsOfProportion(const Inputs& in);
Details ExactDetailsOfProportion(kelpower::proportions::OneSampleTest& test,
                                 const kelpower::proportions::OneSampleProportions& expected, const Inputs& in);

}  // namespace planner

#endif
