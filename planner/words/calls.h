#ifndef KELPOWER_PLANNER_WORDS_CALLS_H
#define KELPOWER_PLANNER_WORDS_CALLS_H

#include <string>

#include "model/test.h"
#include "model/value.h"

namespace planner {

/// How each front end is asked the same: a command of the program, an expression of the other languages.
struct Calls {
  std::string program;
  std::string python;
  std::string r;
};

/// The calls that give these inputs, in the order of the test's parameters.
Calls CallsOf(const Test& test, const InputValues& values);

}  // namespace planner

#endif
