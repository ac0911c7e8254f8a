#include "rows_input.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "format/format.h"
#include "terminal.h"
#include "usage_error.h"
#include "words/csv.h"

namespace {

using planner::DesignFormat;
using planner::Formatted;

constexpr std::size_t readAtOnce = 1 << 18;

// No design is that long: a quote is open, or the file is no text.
constexpr std::size_t longestRow = 1 << 20;

std::string Lower(std::string text) {
  for (char& letter : text) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  }
  return text;
}

DesignFormat FormatOfName(const std::string& name) {
  const std::string ending = Lower(std::filesystem::path(name).extension().string());
  if (ending == ".csv") return DesignFormat::Csv;
  if (ending == ".ndjson" || ending == ".jsonl") return DesignFormat::Ndjson;
  if (ending == ".json") return DesignFormat::Json;
  throw UsageError(Formatted("The file is \"{}\", but must end in .csv, .ndjson or .json.", name));
}

DesignFormat FormatOfText(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos) return DesignFormat::Csv;
  if (text[first] == '{') return DesignFormat::Ndjson;
  return text[first] == '[' ? DesignFormat::Json : DesignFormat::Csv;
}

}  // namespace

RowsInput::RowsInput(const std::string& name) : name_(name), file_(stdin), format_(DesignFormat::Csv) {
  const bool isFile = name != "-";
  if (isFile) {
    format_ = FormatOfName(name);
    std::error_code error;
    if (std::filesystem::is_directory(name, error)) throw UsageError(Formatted("\"{}\" is a folder.", name));
    const auto size = std::filesystem::file_size(name, error);
    if (!error) size_ = static_cast<double>(size);
    file_ = std::fopen(name.c_str(), "rb");
    if (!file_) throw UsageError(Formatted("\"{}\" cannot be read: {}.", name, std::strerror(errno)));
  } else {
    PrepareStandardInput();
  }
  Fill();
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  if (Rest().starts_with(byteOrderMark)) at_ += byteOrderMark.size();
  if (!isFile) format_ = FormatOfText(Rest());
  if (format_ == DesignFormat::Json) ReadDocument();
}

RowsInput::~RowsInput() {
  if (file_ && file_ != stdin) std::fclose(file_);
}

std::string RowsInput::Take(std::size_t bytes) {
  while (Rest().size() < bytes && Fill()) {
  }
  std::size_t end = at_;  // of the rows found so far
  for (;;) {
    const std::size_t next = RowEnd(end);
    if (next != std::string::npos) {
      end = next;
      if (end - at_ >= bytes) break;
    } else if (end > at_) {
      break;
    } else if (Rest().size() > longestRow) {
      throw UsageError(Formatted("A row of \"{}\" is longer than {} bytes; is a quote missing?", name_, longestRow));
    } else if (!Fill()) {
      end = buffer_.size();
      break;
    } else {
      end = at_;  // which filling may have moved
    }
  }
  std::string rows = buffer_.substr(at_, end - at_);
  at_ = end;
  return rows;
}

std::string_view RowsInput::Ahead() {
  while (Rest().size() < readAtOnce && Fill()) {
  }
  return Rest();
}

bool RowsInput::Fill() {
  if (!file_) return false;
  buffer_.erase(0, at_);
  at_ = 0;
  const std::size_t before = buffer_.size();
  buffer_.resize(before + readAtOnce);
  const std::size_t read = std::fread(buffer_.data() + before, 1, readAtOnce, file_);
  buffer_.resize(before + read);
  if (read == 0 && std::ferror(file_) != 0) {
    throw UsageError(Formatted("\"{}\" cannot be read: {}.", name_, std::strerror(errno)));
  }
  return read > 0;
}

void RowsInput::ReadDocument() {
  while (Fill()) {
  }
  buffer_ = planner::LinesOfJson(Rest());
  at_ = 0;
  size_ = static_cast<double>(buffer_.size());
  if (file_ != stdin) std::fclose(file_);
  file_ = nullptr;
}

std::size_t RowsInput::RowEnd(std::size_t from) const {
  if (format_ == DesignFormat::Csv) return planner::CsvRecordEnd(buffer_, from);
  const std::size_t line = buffer_.find('\n', from);
  return line == std::string::npos ? line : line + 1;
}
