#ifndef KELPOWER_PLANNER_WORDS_REPORT_H
#define KELPOWER_PLANNER_WORDS_REPORT_H

#include <optional>
#include <string>
#include <vector>

#include "model/answer.h"
#include "words/explain.h"

namespace planner {

/// A line of a report.
struct Entry {
  std::string name;
  std::string label;
  Value value;
  std::string shown;     // the value for reading
  bool isUnset = false;  // a flag that is not set, which tables for reading leave out
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

}  // namespace planner

#endif
