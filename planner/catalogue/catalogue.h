#ifndef KELPOWER_PLANNER_CATALOGUE_CATALOGUE_H
#define KELPOWER_PLANNER_CATALOGUE_CATALOGUE_H

#include <string_view>
#include <vector>

#include "model/test.h"

namespace planner {

/// Every test, in the order in which they are listed.
const std::vector<Test>& Tests();

/// The test of that name, or null.
const Test* FindTest(std::string_view name);

}  // namespace planner

#endif
