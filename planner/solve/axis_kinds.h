#ifndef KELPOWER_PLANNER_SOLVE_AXIS_KINDS_H
#define KELPOWER_PLANNER_SOLVE_AXIS_KINDS_H

#include <cstddef>

#include "model/chart.h"
#include "model/test.h"

// The axes that every design has: of its sizes, of a number, and of the entries of a list.
namespace planner {

/// The size of a single sample.
Axis SingleSizeAxis(const Test& test, const Parameter& parameter);

/// Groups of unequal sizes keep their shares, and the axis is that of the first.
Axis GroupSizeAxis(const Test& test, const Parameter& parameter, bool isEqual);

Axis TotalAxis(const Test& test, int groups);

Axis SizeOfGroupAxis(const Test& test, const Parameter& parameter, std::size_t group);

Axis NumberAxis(const Parameter& parameter);

Axis EntryAxis(const Parameter& parameter, std::size_t entry);

/// Standard deviations that are given as a list keep their proportion.
Axis SpreadAxis(const Parameter& parameter, bool isEqual);

}  // namespace planner

#endif
