#ifndef KELPOWER_CLI_DESIGNS_OUTPUT_H
#define KELPOWER_CLI_DESIGNS_OUTPUT_H

#include <cstddef>
#include <cstdio>
#include <string>

#include "status_line.h"

/// Where answers to many designs go: the standard output or a file. An array of JSON gets its brackets.
class DesignsOutput {
public:
  /// `name` is that of the file; empty for the standard output.
  DesignsOutput(std::string name, bool isJsonArray);
  ~DesignsOutput();
  DesignsOutput(const DesignsOutput&) = delete;
  DesignsOutput& operator=(const DesignsOutput&) = delete;

  void Write(const std::string& text);
  /// To be called when all has been written.
  void Close();

private:
  void Put(const std::string& text);
  [[noreturn]] void Fail() const;

  std::string name_;
  bool isJsonArray_;
  bool isEmpty_ = true;
  std::FILE* file_;
};

/// A bar that tells how much of the work is done. It comes after a second.
class ProgressBar {
public:
  /// `total` is 0 where it is not known.
  explicit ProgressBar(double total);

  void Show(double done);

private:
  double total_;
  StatusLine line_;
  double start_;
};

/// The number of threads to work with: `jobs`, or as many as there are cores.
unsigned ThreadCount(unsigned jobs);

#endif
