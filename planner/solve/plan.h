#ifndef KELPOWER_PLANNER_SOLVE_PLAN_H
#define KELPOWER_PLANNER_SOLVE_PLAN_H

#include <optional>

#include "model/inputs.h"
#include "model/test.h"

// What the circumstances of a study add to an answer.
namespace planner {

enum class Planned {
  None,
  Level,       // of each of several comparisons
  Effect,      // of the design, of clusters
  Clusters,    // in each group
  Enrol,       // with those who are lost
  EnrolTotal,  // in all groups
  Assurance,   // that the sizes found have
  PowerLimit,  // of an expected power
};

/// What sizes in clusters are multiplied by; 1 without clusters.
double DesignEffect(const Inputs& inputs);

/// The figure, if it is one that follows from the design without its sizes.
std::optional<double> PlannedFigure(Planned planned, const Test& test, const Inputs& inputs);

/// Those to enrol in each group, or the clusters, from the sizes that are given or found.
Numbers PlannedSizes(Planned planned, const Inputs& inputs, const Numbers& sizes);

}  // namespace planner

#endif
