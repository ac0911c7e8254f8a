#ifndef KELPOWER_TESTS_SUPPORT_COUNTING_STOP_H
#define KELPOWER_TESTS_SUPPORT_COUNTING_STOP_H

#include <cstdint>

namespace keltest {

/// A stop request of the interface `Request` that counts how often it is asked. It answers true from a given question
/// on, or to that one alone.
template <typename Request>
class CountingStopOf : public Request {
public:
  static constexpr std::int64_t never = INT64_MAX;

  CountingStopOf() = default;
  explicit CountingStopOf(std::int64_t from) : stopsAt(from) {}

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
