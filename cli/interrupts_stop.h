#ifndef KELPOWER_CLI_INTERRUPTS_STOP_H
#define KELPOWER_CLI_INTERRUPTS_STOP_H

#include "interrupts.h"
#include "model/stop_request.h"

/// While it lives, Ctrl-C asks computations to stop, in all threads. A second one ends the program.
class InterruptsStop {
public:
  InterruptsStop() { NoteInterrupts(); }
  ~InterruptsStop() { LetInterruptsEndTheProgram(); }
  InterruptsStop(const InterruptsStop&) = delete;
  InterruptsStop& operator=(const InterruptsStop&) = delete;

  /// For any number of threads.
  planner::StopRequest* Request() const { return &asked_; }

private:
  struct Asked : planner::StopRequest {
    bool ShouldStop() override { return IsInterrupted(); }
  };
  mutable Asked asked_;
};

#endif
