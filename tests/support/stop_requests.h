#ifndef TESTS_SUPPORT_STOP_REQUESTS_H
#define TESTS_SUPPORT_STOP_REQUESTS_H

#include "kelpower.h"

/// Answers true from its n-th question on, never for n = 0, and counts the questions.
class CountingStop : public StopRequest {
public:
  explicit CountingStop(long trueFrom = 0) : trueFrom_(trueFrom) {}
  bool ShouldStop() override { return ++asked_ >= trueFrom_ && trueFrom_ > 0; }
  long Asked() const { return asked_; }

private:
  long trueFrom_;
  long asked_ = 0;
};

#endif
