#ifndef KELPOWER_CLI_STATUS_LINE_H
#define KELPOWER_CLI_STATUS_LINE_H

#include <cstddef>
#include <string>

/// A line on the terminal of the error stream that is written over and gone in the end. Elsewhere nothing is shown.
class StatusLine {
public:
  StatusLine();
  ~StatusLine();
  StatusLine(const StatusLine&) = delete;
  StatusLine& operator=(const StatusLine&) = delete;

  bool IsShown() const { return isShown_; }

  /// Shows a text that fits a terminal of forty columns, so that it can be written over.
  void Show(const std::string& text);

private:
  bool isShown_;
  std::size_t width_ = 0;  // of the text that stands there
};

#endif
