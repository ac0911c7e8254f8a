#pragma once

#include <string>
#include <vector>

#include "model/answer.h"
#include "solve/results.h"

namespace planner {

/// A line of a report.
struct Entry {
  std::string name;
  std::string label;
  Value value;
  std::string shown;  // the value for reading
};

/// An answer in words.
struct Report {
  const Test* test;
  Question question;
  std::string exportName;
  std::vector<Entry> inputs;
  std::vector<Entry> results;
  std::string sentence;
  std::string note;  // what the reader should be warned of; mostly empty
};

Report MakeReport(const Answer& answer);

/// The parameters that a report of the route's answers lists, where these inputs have a value. `unknown` is what is
/// solved for with the route, or null.
std::vector<const Parameter*> ListedParameters(const Test& test, const Route& route, const Unknown* unknown,
                                               const Inputs& inputs);

/// A result for reading.
std::string ShownResult(Reading reading, double value);
std::string ShownSizes(const Numbers& sizes);

/// What the reader should be warned of; mostly empty.
std::string WordingOf(const std::vector<Note>& notes);

}  // namespace planner
