#ifndef KELPOWER_CLI_PACE_H
#define KELPOWER_CLI_PACE_H

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstddef>

/// How large the next part of some work should be, so that each takes a few hundredths of a second: long enough that
/// handing it on costs nothing, short enough that all threads have something to do and Ctrl-C is soon heard.
class Pace {
public:
  Pace(std::size_t least, std::size_t most) : least_(least), most_(most), size_(least) {}

  std::size_t Size() const { return size_.load(std::memory_order_relaxed); }

  /// Does a part and learns from how long it took.
  template <typename Work>
  void Time(const Work& work) {
    using Clock = std::chrono::steady_clock;
    const Clock::time_point start = Clock::now();
    work();
    const std::chrono::duration<double> seconds = Clock::now() - start;
    const std::size_t size = Size();
    if (seconds.count() < 0.005) size_ = std::min(2 * size, most_);
    if (seconds.count() > 0.05) size_ = std::max(size / 2, least_);
  }

private:
  std::size_t least_;
  std::size_t most_;
  std::atomic<std::size_t> size_;
};

#endif
