#include "status_line.h"

#include <cstdio>

#include "terminal.h"

namespace {

void PutOnTerminal(const std::string& text) {
  std::fputs(text.c_str(), stderr);
  std::fflush(stderr);
}

}  // namespace

StatusLine::StatusLine() : isShown_(IsTerminal(stderr)) {}

StatusLine::~StatusLine() {
  if (width_ > 0) PutOnTerminal('\r' + std::string(width_, ' ') + '\r');
}

void StatusLine::Show(const std::string& text) {
  if (!isShown_) return;
  const std::string rest(width_ > text.size() ? width_ - text.size() : 0, ' ');
  PutOnTerminal('\r' + text + rest);
  width_ = text.size();
}
