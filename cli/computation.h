#ifndef KELPOWER_CLI_COMPUTATION_H
#define KELPOWER_CLI_COMPUTATION_H

#include <chrono>
#include <cstdint>
#include <string>

#include "model/stop_request.h"
#include "status_line.h"

/// A computation that may take long. While it lives, Ctrl-C makes it answer that the library should stop, and a second
/// Ctrl-C ends the program at once. Where the error stream is a terminal, a line shows how long it has been going on.
/// The line goes when the computation ends.
class Computation : public planner::StopRequest {
public:
  /// `what` is computed, in few words: "the sample size".
  explicit Computation(std::string what);
  ~Computation() override;
  Computation(const Computation&) = delete;
  Computation& operator=(const Computation&) = delete;

  bool ShouldStop() override;

private:
  using Clock = std::chrono::steady_clock;

  void LookAtTheClock();

  std::string what_;
  StatusLine line_;
  std::uint32_t questionsLeft_;  // until the clock is looked at
  Clock::time_point start_ = Clock::now();
  Clock::time_point nextLine_;
};

#endif
