#ifndef KELPOWER_CAPI_BATCH_COLUMNS_H
#define KELPOWER_CAPI_BATCH_COLUMNS_H

#include <vector>

#include "model/value.h"
#include "request.h"
#include "solve/prepared_question.h"

namespace kelplan {

/// Throws a BadRequest unless the columns are numbers, each given once.
void CheckColumns(const std::vector<ColumnRequest>& columns);

/// The inputs of a design of the batch: those that are fixed, and numbers that stand for those that vary, which are of no
/// account to the route.
planner::InputValues ValuesWithColumns(const Request& request, const std::vector<ColumnRequest>& columns);

/// The columns of the question: one for each number or entry that a column of the batch sets. `sources` receives that
/// column's index. Throws a BadRequest for an entry that a list does not have, and where nothing gives the entries beside
/// it.
std::vector<planner::Column> BoundColumns(const planner::PreparedQuestion& question, const planner::InputValues& values,
                                          const std::vector<ColumnRequest>& columns, std::vector<std::size_t>& sources);

}  // namespace kelplan

#endif
