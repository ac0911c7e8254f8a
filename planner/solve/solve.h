#ifndef KELPOWER_PLANNER_SOLVE_SOLVE_H
#define KELPOWER_PLANNER_SOLVE_SOLVE_H

#include "model/answer.h"
#include "model/problem.h"
#include "model/test.h"

namespace planner {

/// Answers the question that the values ask. What is left out is solved for. Throws an InputError or a
/// NoSolution. `stop` may end a long computation, which then throws Stopped; it may be null. Once it has answered true
/// it must go on to.
Answer Solve(const Test& test, const InputValues& values, StopRequest* stop = nullptr);

}  // namespace planner

#endif
