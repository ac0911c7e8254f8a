#ifndef KELPOWER_PLANNER_WORDS_READ_DESIGN_H
#define KELPOWER_PLANNER_WORDS_READ_DESIGN_H

#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <string_view>

#include "model/problem.h"
#include "solve/design_row.h"

// How values of a file's designs are read into a row. Limits are not checked here.
namespace planner {

/// Adds the value of a field of CSV; gives the problem when it is none of the parameter's kind. `scratch` is used for
/// lists, so that they take no memory row after row.
std::optional<Problem> AddField(DesignRow& row, const Parameter& parameter, std::string_view text, Numbers& scratch);

/// Adds the value of a field of JSON.
std::optional<Problem> AddField(DesignRow& row, const Parameter& parameter, const nlohmann::ordered_json& value);

/// The object of a line, or a problem when it is none. Nothing in it is nested deeply.
std::optional<Problem> ReadObject(std::string_view line, nlohmann::ordered_json& object);

/// The name of the test in a line of NDJSON; empty where there is none.
std::string TestOfLine(std::string_view line);

}  // namespace planner

#endif
