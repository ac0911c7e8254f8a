#ifndef KELPOWER_PLANNER_WORDS_ROW_ANSWERS_H
#define KELPOWER_PLANNER_WORDS_ROW_ANSWERS_H

#include <memory>
#include <string>
#include <string_view>

#include "words/file_of_designs.h"

namespace planner {

/// Answers rows of a file of designs, row after row. A thread needs one of its own.
class RowAnswers {
public:
  /// The file must outlive it. `stop` may be null.
  RowAnswers(const FileOfDesigns& file, StopRequest* stop);
  ~RowAnswers();

  /// Appends to `answers` the rows, which are whole, each with its results. Gives whether it came to their end: one
  /// that is stopped is left out with all that follow. In an array of JSON a comma precedes each row.
  bool Answer(std::string_view rows, std::string& answers);

private:
  class Reader;
  std::unique_ptr<Reader> reader_;
};

}  // namespace planner

#endif
