#include "computation.h"

#include <fmt/format.h>

#include <cstdio>
#include <utility>

#include "interrupts.h"
#include "terminal.h"

namespace {

// The library may ask some hundred million times a second; a look at the clock takes as long as ten questions or so.
constexpr std::uint32_t questionsPerLook = 4096;
constexpr std::chrono::seconds linePeriod{1};

void PutOnTerminal(const std::string& text) {
  std::fputs(text.c_str(), stderr);
  std::fflush(stderr);
}

}  // namespace

Computation::Computation(std::string what)
    : what_(std::move(what)),
      isShown_(IsTerminal(stderr)),
      questionsLeft_(questionsPerLook),
      nextLine_(start_ + linePeriod) {
  NoteInterrupts();
}

Computation::~Computation() {
  LetInterruptsEndTheProgram();
  if (shownWidth_ > 0) PutOnTerminal('\r' + std::string(shownWidth_, ' ') + '\r');
}

bool Computation::ShouldStop() {
  if (IsInterrupted()) return true;
  if (--questionsLeft_ == 0) LookAtTheClock();
  return false;
}

// Only the time spent is shown. How much is left the library does not say, and in a search it does not know. The line
// fits a terminal of forty columns, so that it can be overwritten.
void Computation::LookAtTheClock() {
  questionsLeft_ = questionsPerLook;
  if (!isShown_) return;
  const Clock::time_point now = Clock::now();
  if (now < nextLine_) return;
  nextLine_ = now + linePeriod;
  const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(now - start_).count();
  const std::string line = fmt::format("Computing {}, {} s so far", what_, seconds);
  PutOnTerminal('\r' + line);
  shownWidth_ = line.size();
}
