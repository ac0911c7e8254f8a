#ifndef KELPOWER_PLANNER_WORDS_REPORT_JSON_H
#define KELPOWER_PLANNER_WORDS_REPORT_JSON_H

#include "words/json_writer.h"
#include "words/report.h"

namespace planner {

/// Writes what a report says as entries of the object that is open.
void WriteReport(JsonWriter& json, const Report& report);

/// "power", "sample-size", "half-width" or "sample-size-for-half-width".
const char* WordOf(Question question);

/// "figure", "sizes", "size", "power" or "half-width".
const char* WordOf(Reading reading);

}  // namespace planner

#endif
