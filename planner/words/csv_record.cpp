#include <algorithm>

#include "words/csv.h"
#include "words/numbers.h"

namespace planner {

std::string CsvField(std::string_view text) {
  if (text.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(text);
  std::string quoted = "\"";
  for (char letter : text) {
    if (letter == '"') quoted += '"';
    quoted += letter;
  }
  return quoted + '"';
}

std::string CsvValue(const Value& value) {
  const auto* numbers = std::get_if<Numbers>(&value);
  return numbers ? ListedWithSpaces(*numbers) : Shown(value);
}

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view blanks = " \t\r\n";
  text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
  return text.substr(0, text.find_last_not_of(blanks) + 1);
}

std::size_t CsvRecordEnd(std::string_view text, std::size_t from) {
  const std::size_t line = text.find('\n', from);
  // Only a quote makes a line feed part of a field.
  if (text.substr(from, line - from).find('"') == std::string_view::npos) {
    return line == std::string_view::npos ? line : line + 1;
  }
  bool isStart = true;  // of a field
  bool isQuoted = false;
  for (std::size_t i = from; i < text.size(); ++i) {
    const char letter = text[i];
    if (letter == '"' && (isStart || isQuoted)) {
      isQuoted = !isQuoted;  // a doubled quote ends the quotation and begins it again
      isStart = !isQuoted;
      continue;
    }
    if (letter == '\n' && !isQuoted) return i + 1;
    isStart = letter == ',' && !isQuoted;
  }
  return std::string_view::npos;
}

void CsvRecord::Split(std::string_view record) {
  if (record.ends_with('\n')) record.remove_suffix(1);
  if (record.ends_with('\r')) record.remove_suffix(1);
  text_ = record;
  fields_.clear();
  isPlain_ = record.find_first_of("\"\r\n") == std::string_view::npos;
  if (!isPlain_) return SplitQuoted();
  for (;;) {
    const std::size_t comma = record.find(',');
    fields_.push_back(record.substr(0, comma));
    if (comma == std::string_view::npos) return;
    record.remove_prefix(comma + 1);
  }
}

/// What follows a closing quote up to the next comma belongs to the field as it stands.
void CsvRecord::SplitQuoted() {
  unquoted_.clear();
  unquoted_.reserve(text_.size());  // so that the fields stay where they are
  std::size_t at = 0;
  for (;;) {
    const std::size_t begin = unquoted_.size();
    if (at < text_.size() && text_[at] == '"') at = ReadQuoted(at + 1);
    const std::size_t comma = std::min(text_.find(',', at), text_.size());
    unquoted_.append(text_, at, comma - at);
    fields_.push_back(std::string_view(unquoted_).substr(begin));
    if (comma == text_.size()) return;
    at = comma + 1;
  }
}

/// Appends the content of a quoted field and gives the place after it.
std::size_t CsvRecord::ReadQuoted(std::size_t at) {
  while (at < text_.size()) {
    const std::size_t quote = std::min(text_.find('"', at), text_.size());
    unquoted_.append(text_, at, quote - at);
    if (quote + 1 < text_.size() && text_[quote + 1] == '"') {
      unquoted_ += '"';
      at = quote + 2;
      continue;
    }
    return std::min(quote + 1, text_.size());
  }
  return at;
}

}  // namespace planner
