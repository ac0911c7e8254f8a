#ifndef TESTS_SUPPORT_STOP_REQUESTS_H
#define TESTS_SUPPORT_STOP_REQUESTS_H

#include <cstdint>

#include "kelpower.h"

/// Answers true from its n-th question on, never for n = 0, and counts the questions.
class CountingStop : public StopRequest {
public:
  explicit CountingStop(std::int64_t trueFrom = 0) : trueFrom_(trueFrom) {}
  bool ShouldStop() override { return ++asked_ >= trueFrom_ && trueFrom_ > 0; }
  std::int64_t Asked() const { return asked_; }

private:
  std::int64_t trueFrom_;
  std::int64_t asked_ = 0;
};

#endif
