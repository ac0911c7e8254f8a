#ifndef KELPOWER_PLANNER_WORDS_CSV_H
#define KELPOWER_PLANNER_WORDS_CSV_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "model/value.h"

// The reading and writing of CSV after RFC 4180. Lines may also end in a line feed alone.
namespace planner {

/// A field of a CSV line, quoted where its content asks for it.
std::string CsvField(std::string_view text);

/// The text without blanks around it.
std::string_view Trimmed(std::string_view text);

/// A value with all its digits, lists separated by spaces.
std::string CsvValue(const Value& value);

/// Where the record that starts at `from` ends, after its line feed; npos where the text ends before.
std::size_t CsvRecordEnd(std::string_view text, std::size_t from);

/// The fields of one record, without their quotes. They are good until the next record is split.
class CsvRecord {
public:
  /// Takes a record with or without the end of its line.
  void Split(std::string_view record);

  const std::vector<std::string_view>& Fields() const { return fields_; }
  std::size_t Count() const { return fields_.size(); }

  /// The record without the end of its line.
  std::string_view Text() const { return text_; }

  /// Whether the text is a record of these fields as it stands, also when something is appended.
  bool IsPlain() const { return isPlain_; }

private:
  void SplitQuoted();
  std::size_t ReadQuoted(std::size_t at);

  std::string_view text_;
  std::vector<std::string_view> fields_;
  bool isPlain_ = true;
  std::string unquoted_;  // the content of quoted fields, one after the other
};

}  // namespace planner

#endif
