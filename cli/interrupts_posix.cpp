#include <atomic>
#include <csignal>

#include "interrupts.h"

namespace {

std::atomic<bool> isInterrupted{false};
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler may set nothing else");

extern "C" void NoteInterrupt(int) { isInterrupted.store(true, std::memory_order_relaxed); }

/// A shell without job control starts a program in the background with the signal ignored. It then stays ignored.
bool IsIgnored(int signal) {
  struct sigaction current {};
  return sigaction(signal, nullptr, &current) == 0 && current.sa_handler == SIG_IGN;
}

/// Blocks or unblocks the signal and gives whether it was blocked before.
bool ChangeMask(int how) {
  sigset_t interrupts;
  sigemptyset(&interrupts);
  sigaddset(&interrupts, SIGINT);
  sigset_t before;
  sigprocmask(how, &interrupts, &before);
  return sigismember(&before, SIGINT) == 1;
}

}  // namespace

void NoteInterrupts() {
  isInterrupted = false;
  struct sigaction action {};
  action.sa_handler = NoteInterrupt;
  action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);  // the second one takes its usual course
  if (!IsIgnored(SIGINT)) sigaction(SIGINT, &action, nullptr);
}

bool IsInterrupted() noexcept { return isInterrupted.load(std::memory_order_relaxed); }

void LetInterruptsEndTheProgram() {
  if (!IsIgnored(SIGINT)) std::signal(SIGINT, SIG_DFL);
}

InterruptsWait::InterruptsWait() : waitedBefore_(ChangeMask(SIG_BLOCK)) {}

InterruptsWait::~InterruptsWait() {
  if (!waitedBefore_) ChangeMask(SIG_UNBLOCK);
}
