#pragma once

#include <string>
#include <vector>

#include "model/parameter.h"

namespace planner {

/// The values that the texts given for an input spell. Each text is one value; that of a single number may be several,
/// "0.2,0.5,0.8" or "20:100:20" from 20 to 100 by 20. Throws an InputError when one is not allowed.
std::vector<Value> ParseAlternatives(const Parameter& parameter, const std::vector<std::string>& texts);

}  // namespace planner
