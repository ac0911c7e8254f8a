#ifndef KELPOWER_PLANNER_WORDS_CHART_JSON_H
#define KELPOWER_PLANNER_WORDS_CHART_JSON_H

#include "model/chart.h"
#include "words/json_writer.h"

namespace planner {

/// Writes what a chart shows as entries of the object that is open; a gap is null.
void WriteChart(JsonWriter& json, const ChartData& chart);

}  // namespace planner

#endif
