#ifndef KELPOWER_PLANNER_WORDS_REPORT_H
#define KELPOWER_PLANNER_WORDS_REPORT_H

#include <string>
#include <vector>

#include "model/answer.h"

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

}  // namespace planner

#endif
