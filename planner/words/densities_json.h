#ifndef KELPOWER_PLANNER_WORDS_DENSITIES_JSON_H
#define KELPOWER_PLANNER_WORDS_DENSITIES_JSON_H

#include "solve/densities.h"
#include "words/json_writer.h"

namespace planner {

/// Writes the distributions as an object.
void WriteDensities(JsonWriter& json, const Densities& densities);

}  // namespace planner

#endif
