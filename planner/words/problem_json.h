#ifndef KELPOWER_PLANNER_WORDS_PROBLEM_JSON_H
#define KELPOWER_PLANNER_WORDS_PROBLEM_JSON_H

#include "model/problem.h"
#include "words/json_writer.h"

namespace planner {

/// The word of a code: "not-allowed". It never changes.
const char* WordOf(Code code);

/// "input", "no-solution" or "stopped": whose fault a problem is.
const char* KindOf(Code code);

/// Writes a problem as an object: its kind and code, the inputs concerned, the value given and what is allowed, the ways
/// to complete the inputs, and its sentence in the names of the writer's style.
void WriteProblem(JsonWriter& json, const Problem& problem);

}  // namespace planner

#endif
