#ifndef KELPOWER_TESTS_PLANNER_SUPPORT_H
#define KELPOWER_TESTS_PLANNER_SUPPORT_H

#include <string>
#include <utility>

#include "catalogue/catalogue.h"
#include "model/problem.h"
#include "solve/chart.h"
#include "solve/solve.h"
#include "support/counting_stop.h"
#include "words/problem.h"
#include "words/report.h"

// What the tests of the planner share.
namespace planner {

using CountingStop = keltest::CountingStopOf<StopRequest>;

/// The worded answer.
inline Report Solved(const Test& test, const InputValues& values, StopRequest* stop = nullptr) {
  return MakeReport(Solve(test, values, stop));
}

/// The sentence of a failure, with inputs named as options.
inline std::string Said(const Failure& failure) {
  return Sentence(failure.problem, [](std::string_view name) { return "--" + std::string(name); });
}

}  // namespace planner

#endif
