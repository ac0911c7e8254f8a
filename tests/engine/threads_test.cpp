// Calls every export from eight threads at once: each call gives the bits of a call that is alone.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <future>
#include <string>
#include <vector>

#include "outcome.h"
#include "target.h"

namespace {

using namespace keltest;
using Bits = std::vector<std::uint64_t>;

constexpr std::size_t threadCount = 8;
constexpr std::size_t mostCases = 6;

// A few of the function's reference cases of all kinds, spread evenly, with the typical ones.
std::vector<Arguments> Calls(const Target& target) {
  std::vector<Arguments> all;
  for (const VectorCase& vectorCase : AllCases()) {
    if (vectorCase.function == target.function->name)
      all.push_back(MakeArguments(vectorCase, target.function->arguments));
  }
  std::vector<Arguments> calls = TypicalCalls(target);
  const std::size_t count = std::min(mostCases, all.size());
  for (std::size_t i = 0; i < count; ++i) calls.push_back(all[i * all.size() / count]);
  return calls;
}

// The calls in order, from `first` on and around.
std::vector<Bits> CallAll(const Target& target, const std::vector<Arguments>& calls, std::size_t first) {
  std::vector<Bits> bits(calls.size());
  for (std::size_t i = 0; i < calls.size(); ++i) {
    const std::size_t position = (first + i) % calls.size();
    bits[position] = Observe(target, calls[position]).bits;
  }
  return bits;
}

// All threads wait for the start, so that they run together. Two at a time make the calls in the same order.
std::vector<std::vector<Bits>> CallFromThreads(const Target& target, const std::vector<Arguments>& calls) {
  std::promise<void> start;
  const std::shared_future<void> started = start.get_future().share();
  std::vector<std::future<std::vector<Bits>>> threads;
  for (std::size_t thread = 0; thread < threadCount; ++thread) {
    threads.push_back(std::async(std::launch::async, [&, thread, started] {
      started.wait();
      return CallAll(target, calls, thread / 2);
    }));
  }
  start.set_value();
  std::vector<std::vector<Bits>> bits;
  for (auto& thread : threads) bits.push_back(thread.get());
  return bits;
}

class Threads : public testing::TestWithParam<Target> {};

// The threads come first, so that they meet whatever a function does only once.
TEST_P(Threads, GiveWhatOneGives) {
  const Target& target = GetParam();
  const std::vector<Arguments> calls = Calls(target);
  const std::vector<std::vector<Bits>> fromThreads = CallFromThreads(target, calls);
  const std::vector<Bits> alone = CallAll(target, calls, 0);
  for (const std::vector<Bits>& bits : fromThreads) {
    for (std::size_t i = 0; i < calls.size(); ++i) EXPECT_TRUE(bits[i] == alone[i]) << Describe(target, calls[i]);
  }
}

INSTANTIATE_TEST_SUITE_P(Exports, Threads, testing::ValuesIn(Targets()),
                         [](const auto& tested) { return tested.param.function->name; });

}  // namespace
