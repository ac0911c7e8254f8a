#include <windows.h>

#include <atomic>

#include "interrupts.h"

// Windows calls the handler in a thread of its own.
namespace {

std::atomic<bool> isNoting{false};
std::atomic<bool> isInterrupted{false};
std::atomic<bool> isWaiting{false};
std::atomic<bool> isDue{false};  // Ctrl-C was pressed while it had to wait

constexpr UINT endedByInterrupt = 130;

BOOL WINAPI HandleInterrupt(DWORD event) {
  if (event != CTRL_C_EVENT) return FALSE;
  if (isWaiting) {
    isDue = true;
    return TRUE;
  }
  return isNoting && !isInterrupted.exchange(true) ? TRUE : FALSE;
}

}  // namespace

void NoteInterrupts() {
  isInterrupted = false;
  isNoting = true;
  SetConsoleCtrlHandler(HandleInterrupt, TRUE);
}

bool IsInterrupted() noexcept { return isInterrupted.load(std::memory_order_relaxed); }

void LetInterruptsEndTheProgram() { isNoting = false; }

InterruptsWait::InterruptsWait() : waitedBefore_(isWaiting.exchange(true)) {
  SetConsoleCtrlHandler(HandleInterrupt, TRUE);
}

InterruptsWait::~InterruptsWait() {
  isWaiting = waitedBefore_;
  if (!waitedBefore_ && isDue) ExitProcess(endedByInterrupt);
}
