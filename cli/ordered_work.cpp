#include "ordered_work.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <map>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace {

constexpr std::chrono::milliseconds lookPeriod{100};

// Of each thread; some blocks take longer than others.
constexpr std::size_t blocksAhead = 4;

/// The state that the threads share.
class Crew {
public:
  Crew(const OrderedWork& work, unsigned threads) : work_(work), mostInFlight_(blocksAhead * threads) {}

  void Work() noexcept {
    try {
      const auto worker = work_.makeWorker();
      while (const auto block = Next()) {
        BlockResult result = worker(block->second);
        HandOn(block->first, block->second, std::move(result));
      }
    } catch (...) {
      const std::lock_guard lock(mutex_);
      if (!error_) error_ = std::current_exception();
      isOver_ = true;
    }
    const std::lock_guard lock(mutex_);
    ++finished_;
    changed_.notify_all();
  }

  bool Wait(unsigned threads) {
    std::unique_lock lock(mutex_);
    while (!changed_.wait_for(lock, lookPeriod, [&] { return finished_ == threads; })) {
      lock.unlock();
      work_.look();
      lock.lock();
    }
    if (error_) std::rethrow_exception(error_);
    return !isCut_;
  }

  void End() {
    const std::lock_guard lock(mutex_);
    isOver_ = true;
    changed_.notify_all();
  }

private:
  std::optional<std::pair<std::size_t, Block>> Next() {
    {
      std::unique_lock lock(mutex_);
      changed_.wait(lock, [&] { return isOver_ || taken_ - handedOn_ < mostInFlight_; });
    }
    // While one thread waits for its block, the others may hand on theirs.
    const std::lock_guard reading(reading_);
    if (IsOver()) return std::nullopt;
    std::optional<Block> block = work_.next();
    const std::lock_guard lock(mutex_);
    if (block) return std::pair(taken_++, *std::move(block));
    isOver_ = true;
    changed_.notify_all();
    return std::nullopt;
  }

  bool IsOver() {
    const std::lock_guard lock(mutex_);
    return isOver_;
  }

  void HandOn(std::size_t number, const Block& block, BlockResult result) {
    const std::lock_guard lock(mutex_);
    done_.emplace(number, std::pair(Block{"", block.first, block.text.size() + block.count}, std::move(result)));
    for (auto next = done_.find(handedOn_); next != done_.end(); next = done_.find(handedOn_)) {
      if (!isCut_) work_.take(next->second.first, std::move(next->second.second.text));
      if (!next->second.second.isWhole) isCut_ = isOver_ = true;
      done_.erase(next);
      ++handedOn_;
    }
    changed_.notify_all();
  }

  const OrderedWork& work_;
  const std::size_t mostInFlight_;
  std::mutex reading_;
  std::mutex mutex_;  // of all that follows
  std::condition_variable changed_;
  std::map<std::size_t, std::pair<Block, BlockResult>> done_;  // that wait for those before them
  std::size_t taken_ = 0;
  std::size_t handedOn_ = 0;
  unsigned finished_ = 0;  // threads
  bool isOver_ = false;    // there is no more to take
  bool isCut_ = false;     // a result was not whole
  std::exception_ptr error_;
};

}  // namespace

bool OrderedWork::Run(unsigned threads) const {
  Crew crew(*this, threads);
  std::vector<std::thread> others;
  std::exception_ptr error;
  bool isWhole = false;
  // Whatever happens, no thread outlives the crew.
  try {
    for (unsigned i = 0; i < threads; ++i) others.emplace_back([&] { crew.Work(); });
    isWhole = crew.Wait(threads);
  } catch (...) {
    error = std::current_exception();
    crew.End();
  }
  for (std::thread& other : others) other.join();
  if (error) std::rethrow_exception(error);
  return isWhole;
}
