#ifndef KELPOWER_TESTS_SUPPORT_STOP_REQUESTS_H
#define KELPOWER_TESTS_SUPPORT_STOP_REQUESTS_H

#include <cstdint>

#include "kelpower.h"

namespace keltest {

/// Counts how often it is asked, and answers true from a given question on, or to that one alone.
class CountingStop : public StopRequest {
public:
  static constexpr std::int64_t never = INT64_MAX;

  CountingStop() = default;
  explicit CountingStop(std::int64_t from) : stopsAt(from) {}

  bool ShouldStop() override {
    ++asked;
    return stopsOnce ? asked == stopsAt : asked >= stopsAt;
  }

  /// As the core asks it.
  bool operator()() { return ShouldStop(); }

  std::int64_t stopsAt = never;
  bool stopsOnce = false;
  std::int64_t asked = 0;
};

}  // namespace keltest

#endif
