#ifndef KELPOWER_PLANNER_SOLVE_ROW_RESULTS_H
#define KELPOWER_PLANNER_SOLVE_ROW_RESULTS_H

#include <vector>

#include "solve/prepared_question.h"
#include "solve/results.h"

// What a prepared question tells of its last answer, result by result.
namespace planner {

/// The results of a question, without figures that its inputs do not tell.
std::vector<ResultColumn> ResultColumnsOf(const PreparedQuestion& question);

/// The sizes that the column is about, one for each group.
Numbers SizesOf(const PreparedQuestion& question, const ResultColumn& column);

/// The number of the column, which is not one of sizes by group; `value` is what the answer's row gives. NaN where there
/// is none.
double NumberOf(const PreparedQuestion& question, const ResultColumn& column, double value);

}  // namespace planner

#endif
