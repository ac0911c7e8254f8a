#ifndef KELPOWER_PLANNER_WORDS_REPORT_H
#define KELPOWER_PLANNER_WORDS_REPORT_H

#include <optional>
#include <string>
#include <vector>

#include "model/answer.h"
#include "solve/design_solver.h"
#include "solve/results.h"
#include "words/explain.h"

namespace planner {

/// A line of a report.
struct Entry {
  std::string name;
  std::string label;
  Value value;
  std::string shown;           // the value for reading
  bool isUnset = false;        // a flag that is not set, which tables for reading leave out
  bool isForPrograms = false;  // a result that stands in what is shown of another one
};

/// An answer in words.
struct Report {
  const Test* test;
  Question question;
  std::string exportName;
  std::vector<Entry> inputs;
  std::vector<Entry> assumptions;  // words that say what is taken for granted
  std::vector<Entry> results;
  std::string sentence;
  std::string note;                             // what the reader should be warned of; mostly empty
  std::optional<Explanation> explanation = {};  // where it is asked for
};

Report MakeReport(const Answer& answer);

/// The parameters that a report of the route's answers lists, where these inputs have a value. `unknown` is what is
/// solved for with the route, or null.
std::vector<const Parameter*> ListedParameters(const Test& test, const Route& route, const Unknown* unknown,
                                               const Inputs& inputs);

/// The name of an input in answers. A power or half-width to reach has another one than that which is reached.
std::string NameInReports(const Parameter& parameter, const Route& route, const Unknown* unknown);

/// A result for reading.
std::string ShownResult(Reading reading, double value);
std::string ShownSizes(const Numbers& sizes);

/// What is odd about a level or a power, as percentages and slips of the pen make it. Mostly empty.
std::string NoteOn(Question question, const Inputs& inputs, double value);
std::string NoteOn(const DesignAnswer& answer);

}  // namespace planner

#endif
