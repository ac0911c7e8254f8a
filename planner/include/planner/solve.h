#pragma once

#include <string>
#include <vector>

#include "planner/inputs.h"
#include "planner/test.h"

namespace planner {

struct Entry {
  std::string name;
  std::string label;
  Value value;
  std::string shown;  // the value for reading
};

/// An answered question.
struct Report {
  const Test* test;
  Question question;
  std::string exportName;
  std::vector<Entry> inputs;
  std::vector<Entry> results;
  std::string sentence;
  std::string note;  // what the reader should be warned of; mostly empty
};

/// Answers the question that the inputs ask: what is left out is what is solved for. Throws an InputError or a
/// NoSolution. `stop` may end a long computation, which then throws Stopped; it may be null. Once it has answered true
/// it must go on to.
Report Solve(const Test& test, const Given& given, StopRequest* stop = nullptr);

}  // namespace planner
