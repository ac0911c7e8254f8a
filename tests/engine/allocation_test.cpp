// Calls every export that allocates with one allocation failing, each in turn. std::bad_alloc passes through, nothing
// is leaked, no record is handed out, and a vector of sizes stays as it was or holds missing values.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "limited_memory.h"
#include "outcome.h"
#include "target.h"

namespace {

using namespace keltest;

std::int64_t failingAllocation = 0;

Result CallWithFailure(const Function& function, Arguments& arguments) {
  const LimitedMemory limit(failingAllocation, SIZE_MAX);
  return Call(function, arguments);
}

// Calls with the first, second, ... allocation failing until there is none left to fail. Returns how many failed.
std::int64_t FailEachAllocation(const Target& target, const Arguments& arguments) {
  const std::vector<std::uint64_t> expected = Observe(target, arguments).bits;
  for (failingAllocation = 1;; ++failingAllocation) {
    SCOPED_TRACE("allocation " + std::to_string(failingAllocation));
    const std::int64_t live = LiveAllocations();
    Outcome outcome = Observe(target, arguments, CallWithFailure);
    const bool isSame = outcome.bits == expected;
    std::vector<std::uint64_t>().swap(outcome.bits);
    const bool leaks = outcome.problems.empty() && LiveAllocations() != live;

    EXPECT_FALSE(leaks);
    EXPECT_EQ(outcome.problems, std::vector<std::string>());
    EXPECT_TRUE(outcome.ranOutOfMemory || isSame) << "differs from the call before the failures";
    if (!outcome.ranOutOfMemory) return failingAllocation - 1;
  }
}

// A record has two or three arrays, and a vector that is empty before the call has to grow.
std::int64_t FewestAllocations(const Target& target) {
  if (target.function->result == "XY") return 2;
  if (target.function->result == "XYZ") return 3;
  return target.function->arguments.find('v') != std::string::npos ? 1 : 0;
}

class Allocation : public testing::TestWithParam<Target> {};

TEST_P(Allocation, FailsCleanly) {
  const Target& target = GetParam();
  const std::vector<Arguments> calls = TypicalCalls(target);
  ASSERT_FALSE(calls.empty());
  for (Arguments arguments : calls) {
    for (std::size_t i = 0; i < arguments.size(); ++i)
      if (target.function->arguments[i] == 'v') arguments[i].array = {};
    SCOPED_TRACE(Describe(target, arguments));
    EXPECT_GE(FailEachAllocation(target, arguments), FewestAllocations(target));
  }
}

INSTANTIATE_TEST_SUITE_P(Exports, Allocation, testing::ValuesIn(Targets()),
                         [](const auto& tested) { return tested.param.function->name; });

}  // namespace
