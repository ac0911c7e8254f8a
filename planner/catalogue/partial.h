#ifndef KELPOWER_PLANNER_CATALOGUE_PARTIAL_H
#define KELPOWER_PLANNER_CATALOGUE_PARTIAL_H

#include <optional>

#include "model/chart.h"
#include "model/inputs.h"

// What the questions about partial correlations and their charts share.
namespace planner {

constexpr double mostPartialledOut = 1e5;

inline double PartialledOut(const Inputs& in) { return in.Number("partialled-out"); }

/// The smallest number of cases that a partial correlation is tested with.
inline double SmallestPartialSize(const Inputs& in) { return PartialledOut(in) + 4; }

/// The problem of sizes that the charts cannot draw; none where they draw all.
std::optional<Problem> RefusePartialSizes(const Inputs& in, const Range& sizes);

/// The chart of the power over the number of variables partialled out.
Chart PowerOverVariablesPartialledOut();

}  // namespace planner

#endif
