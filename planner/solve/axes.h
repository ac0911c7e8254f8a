#ifndef KELPOWER_PLANNER_SOLVE_AXES_H
#define KELPOWER_PLANNER_SOLVE_AXES_H

#include <string>
#include <vector>

#include "model/chart.h"
#include "model/test.h"

namespace planner {

/// Moves the design to the total that is the nearest to `at` of those that whole groups in its shares make.
void SetTotal(Inputs& in, const Inputs& design, double at);

/// The group with the fewest.
std::size_t SmallestGroup(const Inputs& design);

/// The total of whole groups in the shares of the design whose smallest is `smallestSize`.
double TotalOf(const Inputs& design, double smallestSize);

/// The axes that designs of the route have: those that the test describes, the sizes, and every other number that the
/// route takes. `groups` is that of the designs.
std::vector<Axis> AxesOf(const Test& test, const Route& route, int groups);

/// The axes along which this design can be varied.
std::vector<Axis> AxesOf(const Test& test, const Route& route, const Inputs& design);

/// The axes of all routes of a test that give a value, each name once. A list has the axis of its first entry.
std::vector<Axis> AllAxes(const Test& test);

/// The one or two axes that the name of a chart names; none where it names no chart. Former names are understood.
std::vector<Axis> AxesNamed(const std::string& name, const std::vector<Axis>& axes);

}  // namespace planner

#endif
