#include "solve/solve.h"

#include "solve/prepared_question.h"

namespace planner {

Answer Solve(const Test& test, const InputValues& values, StopRequest* stop) {
  return PreparedQuestion(test, values, stop).Solve();
}

}  // namespace planner
