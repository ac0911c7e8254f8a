#ifndef KELPOWER_PLANNER_CATALOGUE_REGRESSION_H
#define KELPOWER_PLANNER_CATALOGUE_REGRESSION_H

#include <vector>

#include "model/inputs.h"
#include "model/test.h"
#include "regression/test_of_predictors.h"

// What the questions about predictors of a regression and their charts share.
namespace planner {

constexpr double mostPredictors = 1e5;

inline double Predictors(const Inputs& in) { return in.Number("predictors"); }

/// How many predictors the test is of: all, unless fewer are given.
inline double TestedPredictors(const Inputs& in) { return in.Has("tested") ? in.Number("tested") : Predictors(in); }

/// The R squared of the predictors that are not tested, 0 unless given.
inline double ReducedFit(const Inputs& in) { return in.Has("r-squared-reduced") ? in.Number("r-squared-reduced") : 0; }

inline bool Intercept(const Inputs& in) { return !in.Flag("no-intercept"); }

/// The smallest number of cases that leaves something to estimate the error variance from.
inline double SmallestSize(const Inputs& in) { return Predictors(in) + (Intercept(in) ? 2 : 1); }

kelpower::regression::Effect EffectOfRegression(const Inputs& in);

std::vector<Route> RoutesOfRegression();
std::vector<Unknown> UnknownsOfRegression();
std::vector<Condition> ConditionsOfRegression();
std::vector<Condition> SizeExistsForRegression();

}  // namespace planner

#endif
