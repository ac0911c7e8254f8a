#ifndef KELPOWER_CLI_ROWS_INPUT_H
#define KELPOWER_CLI_ROWS_INPUT_H

#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>

#include "words/file_of_designs.h"

/// The rows of a file of designs, taken a few at a time, so that only these are in memory. A document of JSON is read
/// whole and handed out as lines.
class RowsInput {
public:
  /// The ending of the name tells the format: .csv, .ndjson or .json. Of the standard input, "-", its first letter does.
  explicit RowsInput(const std::string& name);
  ~RowsInput();
  RowsInput(const RowsInput&) = delete;
  RowsInput& operator=(const RowsInput&) = delete;

  planner::DesignFormat Format() const { return format_; }

  /// In bytes; 0 where it is not known.
  double Size() const { return size_; }

  /// Whole rows of about so many bytes, at least one; nothing at the end.
  std::string Take(std::size_t bytes);

  /// A single row; nothing at the end.
  std::string TakeRow() { return Take(1); }

  /// Some thousand rows that are still to be taken, or all there are.
  std::string_view Ahead();

private:
  std::string_view Rest() const { return std::string_view(buffer_).substr(at_); }
  bool Fill();  // whether there was more
  void ReadDocument();
  std::size_t RowEnd(std::size_t from) const;

  std::string name_;
  std::FILE* file_;
  planner::DesignFormat format_;
  double size_ = 0;
  std::string buffer_;
  std::size_t at_ = 0;  // of the rows to be taken next
};

#endif
