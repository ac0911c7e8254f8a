#include "computation.h"

#include <fmt/format.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <cstdio>
#include <utility>

namespace {

// The library may ask some hundred million times a second; a look at the clock takes as long as ten questions or so.
constexpr std::uint32_t questionsPerLook = 4096;
constexpr std::chrono::seconds linePeriod{1};

std::atomic<bool> isInterrupted{false};
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler may set nothing else");

extern "C" void NoteInterrupt(int) { isInterrupted.store(true, std::memory_order_relaxed); }

/// A program started in the background by a shell without job control ignores the signal; so it stays.
bool IsIgnored(int signal) {
  struct sigaction current {};
  return sigaction(signal, nullptr, &current) == 0 && current.sa_handler == SIG_IGN;
}

void NoteInterrupts() {
  isInterrupted = false;
  struct sigaction action {};
  action.sa_handler = NoteInterrupt;
  action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);  // the second one takes its usual course
  if (!IsIgnored(SIGINT)) sigaction(SIGINT, &action, nullptr);
}

void LetInterruptsEndTheProgram() {
  if (!IsIgnored(SIGINT)) std::signal(SIGINT, SIG_DFL);
}

void PutOnTerminal(const std::string& text) {
  std::fputs(text.c_str(), stderr);
  std::fflush(stderr);
}

}  // namespace

Computation::Computation(std::string what)
    : what_(std::move(what)),
      isShown_(isatty(STDERR_FILENO) != 0),
      questionsLeft_(questionsPerLook),
      nextLine_(start_ + linePeriod) {
  NoteInterrupts();
}

Computation::~Computation() {
  LetInterruptsEndTheProgram();
  if (shownWidth_ > 0) PutOnTerminal('\r' + std::string(shownWidth_, ' ') + '\r');
}

bool Computation::ShouldStop() {
  if (isInterrupted.load(std::memory_order_relaxed)) return true;
  if (--questionsLeft_ == 0) LookAtTheClock();
  return false;
}

// The library does not say how much is left, nor does it know in a search: only the time spent is told. The line fits a
// terminal of forty columns, so that it can be overwritten.
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

InterruptsWait::InterruptsWait() {
  sigset_t interrupts;
  sigemptyset(&interrupts);
  sigaddset(&interrupts, SIGINT);
  sigprocmask(SIG_BLOCK, &interrupts, &before_);
}

InterruptsWait::~InterruptsWait() { sigprocmask(SIG_SETMASK, &before_, nullptr); }
