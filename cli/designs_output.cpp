#include "designs_output.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <stdexcept>
#include <string_view>
#include <thread>
#include <utility>

#include "format/format.h"
#include "terminal.h"

using planner::Formatted;

namespace {

double SecondsNow() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

}  // namespace

DesignsOutput::DesignsOutput(std::string name, bool isJsonArray)
    : name_(std::move(name)), isJsonArray_(isJsonArray), file_(stdout) {
  if (!name_.empty()) file_ = std::fopen(name_.c_str(), "wb");
  if (!file_) Fail();
}

DesignsOutput::~DesignsOutput() {
  if (file_ && file_ != stdout) std::fclose(file_);
}

/// Rows of an array come with a comma before each.
void DesignsOutput::Write(const std::string& text) {
  if (text.empty()) return;
  if (isJsonArray_ && isEmpty_) {
    Put('[' + text.substr(1));
  } else {
    Put(text);
  }
  isEmpty_ = false;
}

void DesignsOutput::Close() {
  if (isJsonArray_) Put(isEmpty_ ? "[]\n" : "\n]\n");
  std::FILE* const file = std::exchange(file_, nullptr);
  if (file != stdout && std::fclose(file) != 0) Fail();
}

void DesignsOutput::Put(const std::string& text) {
  const bool isWritten = std::fwrite(text.data(), 1, text.size(), file_) == text.size() && std::fflush(file_) == 0;
  if (!isWritten) Fail();
}

void DesignsOutput::Fail() const {
  const std::string what = name_.empty() ? "The standard output" : Formatted("\"{}\"", name_);
  throw std::runtime_error(Formatted("{} cannot be written: {}.", what, std::strerror(errno)));
}

ProgressBar::ProgressBar(double total) : total_(total), start_(SecondsNow()) {}

void ProgressBar::Show(double done) {
  constexpr double patience = 1;
  constexpr double width = 20;
  const double seconds = SecondsNow() - start_;
  if (!line_.IsShown() || seconds < patience) return;
  if (total_ <= 0) return line_.Show(Formatted("Answering designs, {:.0f} s so far", seconds));
  const double share = std::min(done / total_, 1.0);
  const std::string bar(static_cast<std::size_t>(share * width), '#');
  line_.Show(Formatted("Designs [{:<20}] {:3.0f}%", bar, 100 * share));
}

unsigned ThreadCount(unsigned jobs) { return jobs > 0 ? jobs : std::max(1U, std::thread::hardware_concurrency()); }
