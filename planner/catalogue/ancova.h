#ifndef KELPOWER_PLANNER_CATALOGUE_ANCOVA_H
#define KELPOWER_PLANNER_CATALOGUE_ANCOVA_H

#include <vector>

#include "anova/covariance.h"
#include "model/test.h"

// What the files of the analysis of covariance share.
namespace planner {

kelpower::anova::CovarianceTest CovarianceTestOf(const Inputs& in);

/// Where the groups do not differ in the covariates.
double NoncentralityOfAdjustedMeans(const Inputs& in);

std::vector<Route> RoutesOfAncova();
std::vector<Condition> ConditionsOfAncova();

}  // namespace planner

#endif
