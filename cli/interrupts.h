#ifndef KELPOWER_CLI_INTERRUPTS_H
#define KELPOWER_CLI_INTERRUPTS_H

/// \file
/// What Ctrl-C does. Each system has a file of its own for it.

/// From now on Ctrl-C is noted; a second one ends the program.
void NoteInterrupts();

/// Whether one has been noted.
bool IsInterrupted() noexcept;

/// From now on Ctrl-C ends the program, as it does at the start.
void LetInterruptsEndTheProgram();

/// While it lives Ctrl-C waits, so that what has been begun is finished.
class InterruptsWait {
public:
  InterruptsWait();
  ~InterruptsWait();
  InterruptsWait(const InterruptsWait&) = delete;
  InterruptsWait& operator=(const InterruptsWait&) = delete;

private:
  bool waitedBefore_;
};

#endif
