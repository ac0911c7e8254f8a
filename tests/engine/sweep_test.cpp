// Calls every export with invalid and extreme arguments, one at a time in place of those of a typical case. Whatever
// the answer is, the call returns, keeps the promises that hold for all arguments, and gives the same bits a second
// time.

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <limits>

#include "outcome.h"
#include "target.h"
#include "watch.h"

namespace {

using namespace keltest;

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double hugeNumber = 1e308;
constexpr double tinyNumber = 1e-308;
constexpr double denormal = std::numeric_limits<double>::denorm_min();

const std::vector<double> asDoubles = {std::numeric_limits<double>::quiet_NaN(),
                                       infinite,
                                       -infinite,
                                       0.0,
                                       -0.0,
                                       1.0,
                                       denormal,
                                       tinyNumber,
                                       hugeNumber,
                                       -hugeNumber};
const std::vector<std::int32_t> asInts = {INT_MIN, -1, 0, 1, 2, INT_MAX};
const std::vector<std::int32_t> bothFlags = {0, 1, 2, UINT8_MAX};

// As long as such an axis may be in a test; INT_MAX points would be honest work without end.
const std::vector<std::int32_t> axisEnds = {INT_MIN, -1, 0, 1, 2, 300};

// A search for a power that no size has goes on until the StopRequest ends it.
constexpr std::int64_t questions = 12;

// An axis has as many points as its step demands, so that nothing is wrong when such a chart takes long.
bool IsUnbounded(const std::string& name, double value) {
  return name.find("step") != std::string::npos && (value == tinyNumber || value == denormal);
}

// The length of the arrays that an argument counts.
std::int32_t ArrayLength(const Arguments& arguments, const std::string& types) {
  std::size_t length = INT_MAX;
  for (std::size_t i = 0; i < types.size(); ++i)
    if (types[i] == 'p' || types[i] == 'P') length = std::min(length, arguments[i].array.size());
  return static_cast<std::int32_t>(length);
}

std::vector<std::int32_t> IntegersFor(const std::string& name, std::int32_t arrayLength) {
  std::vector<std::int32_t> values = IsSizeAxisEnd(name) ? axisEnds : asInts;
  if (name == "numGroups")
    values.erase(std::remove_if(values.begin(), values.end(), [&](std::int32_t v) { return v > arrayLength; }),
                 values.end());
  return values;
}

// The arguments of the typical call with another one at `position`.
std::vector<Arguments> Variations(const Target& target, const Arguments& typical, std::size_t position) {
  const std::string& types = target.function->arguments;
  std::vector<Arguments> variations;
  const auto add = [&]() -> Argument& { return variations.emplace_back(typical)[position]; };
  switch (types[position]) {
    case 'd':
      for (const double value : asDoubles)
        if (!IsUnbounded(target.names[position], value)) add().number = value;
      break;
    case 'i':
      for (const std::int32_t value : IntegersFor(target.names[position], ArrayLength(typical, types)))
        add().integer = value;
      break;
    case 'b':
      for (const std::int32_t value : bothFlags) add().integer = value;
      break;
    case 'p':
    case 'P':
      for (std::size_t entry = 0; entry < typical[position].array.size(); ++entry)
        for (const double value : asDoubles) add().array[entry] = value;
      break;
    case 'v': add().array = {1, 2, 3}; break;
    case 's':
      add().stopRequest.stopsAt = 1;
      if (!IsSearch(target)) add().isNull = true;
      break;
    default: break;
  }
  return variations;
}

Outcome CallOnce(const Target& target, const Arguments& arguments, const std::string& call) {
  const Watch watch(call);
  return Observe(target, arguments);
}

void CallTwice(const Target& target, const Arguments& arguments) {
  const std::string call = Describe(target, arguments);
  SCOPED_TRACE(call);
  const Outcome first = CallOnce(target, arguments, call);
  EXPECT_EQ(first.problems, std::vector<std::string>());
  EXPECT_FALSE(first.ranOutOfMemory);
  EXPECT_TRUE(first.bits == CallOnce(target, arguments, call).bits) << "two calls differ";
}

// Ends a search that would go on for ever. A power has bounded work and is left to finish.
void Bound(Arguments& arguments, const Target& target) {
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (target.function->arguments[i] != 's') continue;
    arguments[i].isNull = false;
    arguments[i].stopRequest.stopsAt = IsSearch(target) ? questions : INT64_MAX;
  }
}

class Sweep : public testing::TestWithParam<Target> {};

TEST_P(Sweep, ReturnsTheSameTwice) {
  const Target& target = GetParam();
  const std::vector<Arguments> calls = TypicalCalls(target);
  ASSERT_FALSE(calls.empty()) << "there is no case to start from";
  for (Arguments typical : calls) {
    Bound(typical, target);
    for (std::size_t position = 0; position < typical.size(); ++position)
      for (const Arguments& arguments : Variations(target, typical, position)) CallTwice(target, arguments);
  }
}

INSTANTIATE_TEST_SUITE_P(Exports, Sweep, testing::ValuesIn(Targets()),
                         [](const auto& swept) { return swept.param.function->name; });

}  // namespace
