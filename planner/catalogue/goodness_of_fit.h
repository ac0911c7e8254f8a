#ifndef KELPOWER_PLANNER_CATALOGUE_GOODNESS_OF_FIT_H
#define KELPOWER_PLANNER_CATALOGUE_GOODNESS_OF_FIT_H

#include <vector>

#include "catalogue/chi_square.h"

// What the questions about goodness of fit share.
namespace planner {

/// The null proportions given, or equal ones.
Numbers NullProportions(const Inputs& in);

/// The noncentrality per observation of the statistic, from proportions or from w.
ChiSquareDesign DesignOfGoodnessOfFit(const Inputs& in);

std::vector<Route> RoutesOfGoodnessOfFit();

}  // namespace planner

#endif
