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

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kHuge = 1e308;
constexpr double kTiny = 1e-308;
constexpr double kDenormal = std::numeric_limits<double>::denorm_min();

const std::vector<double> kDoubles = {
    std::numeric_limits<double>::quiet_NaN(), kInfinity, -kInfinity, 0.0, -0.0, 1.0, kDenormal, kTiny, kHuge, -kHuge};
const std::vector<std::int32_t> kInts = {INT_MIN, -1, 0, 1, 2, INT_MAX};
const std::vector<std::int32_t> kFlags = {0, 1, 2, UINT8_MAX};

// As long as such an axis may be in a test; INT_MAX points would be honest work without end.
const std::vector<std::int32_t> kAxisEnds = {INT_MIN, -1, 0, 1, 2, 300};

// A search for a power that no size has goes on until the StopRequest ends it.
constexpr std::int64_t kQuestions = 12;

// An axis has as many points as its step demands, so that nothing is wrong when such a chart takes long.
bool IsUnbounded(const std::string& name, double value) {
  return name.find("step") != std::string::npos && (value == kTiny || value == kDenormal);
}

// The length of the arrays that an argument counts.
std::int32_t ArrayLength(const Arguments& arguments, const std::string& types) {
  std::size_t length = INT_MAX;
  for (std::size_t i = 0; i < types.size(); ++i)
    if (types[i] == 'p' || types[i] == 'P') length = std::min(length, arguments[i].array.size());
  return static_cast<std::int32_t>(length);
}

std::vector<std::int32_t> IntegersFor(const std::string& name, std::int32_t arrayLength) {
  std::vector<std::int32_t> values = IsSizeAxisEnd(name) ? kAxisEnds : kInts;
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
      for (const double value : kDoubles)
        if (!IsUnbounded(target.names[position], value)) add().number = value;
      break;
    case 'i':
      for (const std::int32_t value : IntegersFor(target.names[position], ArrayLength(typical, types)))
        add().integer = value;
      break;
    case 'b':
      for (const std::int32_t value : kFlags) add().integer = value;
      break;
    case 'p':
    case 'P':
      for (std::size_t entry = 0; entry < typical[position].array.size(); ++entry)
        for (const double value : kDoubles) add().array[entry] = value;
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
    arguments[i].stopRequest.stopsAt = IsSearch(target) ? kQuestions : INT64_MAX;
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
