#pragma once

#include <string>
#include <vector>

#include "planner/test.h"

namespace planner {

/// Every test, in the order in which they are listed.
const std::vector<Test>& Tests();

/// The test of that name, or null.
const Test* FindTest(const std::string& name);

}  // namespace planner
