#ifndef KELPOWER_PLANNER_CATALOGUE_REGRESSION_H
#define KELPOWER_PLANNER_CATALOGUE_REGRESSION_H

#include "model/inputs.h"

// What the questions about predictors of a regression and their charts share.
namespace planner {

constexpr double mostPredictors = 1e5;

inline double Predictors(const Inputs& in) { return in.Number("predictors"); }

inline bool Intercept(const Inputs& in) { return !in.Flag("no-intercept"); }

/// The smallest number of cases that leaves something to estimate the error variance from.
inline double SmallestSize(const Inputs& in) { return Predictors(in) + (Intercept(in) ? 2 : 1); }

}  // namespace planner

#endif
