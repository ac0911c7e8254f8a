#ifndef KELPOWER_CAPI_VALUES_H
#define KELPOWER_CAPI_VALUES_H

#include <optional>
#include <vector>

#include "json_tree.h"
#include "model/parameter.h"

namespace kelplan {

/// A number, or an array of them.
std::optional<planner::Numbers> NumbersOf(const JsonTree& json);

/// What JSON gives for an input: a value, or several alternatives. For a number, a flag or a word these are an array; for
/// a list an array of arrays, since an array of numbers is the list. Throws an InputError for a value of another kind.
std::vector<planner::Value> ValuesOf(const planner::Parameter& parameter, const JsonTree& json);

}  // namespace kelplan

#endif
