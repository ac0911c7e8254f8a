// Any arguments to any export: the call must return within a bounded time, keep the promises that hold for all
// arguments, and give the same bits a second time. The sanitizers look for everything else, leaks included.
//
// Run: make fuzz. New inputs are kept in the build folder; the committed ones in fuzz/corpus/kelpower are its seeds,
// written by fuzz_calls from the reference cases.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "call_input.h"
#include "limited_memory.h"
#include "outcome.h"
#include "watch.h"

namespace {

using namespace kelfuzz;
using namespace keltest;

// Bounds of work that the caller asks for, and that has no bound of its own. Everything else is left as it is.

// A chart has as many points as its arguments demand, up to 2^31 on each axis. One that has more than this ends in
// std::bad_alloc, as it would on a machine without memory: 1,100 points are enough for the coarser steps that charts
// take from a span of 1,000 sizes on. Where each point is an exact test, fewer have to do.
constexpr std::size_t mostChartPoints = 1100;
constexpr std::size_t mostExactPoints = 64;

// Exact tests take time in proportion to the group sizes, or to their product, up to 2^31 - 1 each; beyond, they are
// missing at once. A chart has one at each point.
constexpr double largestExactSize = 1500;
constexpr double largestChartedSize = 100;
constexpr double uncountable = 2147483648.0;

// An exact search for a power that no size has goes on until the StopRequest ends it. Most are asked once a count,
// those of two groups once a table, of which a single power has many.
constexpr std::int64_t mostStopQuestions = 20000;
constexpr std::int64_t mostQuestionsOfTables = 1000000;

struct MemoryLimit {
  std::int64_t failing;
  std::size_t mostPoints;
};

MemoryLimit memoryLimit;

Result CallWithLimitedMemory(const Function& function, Arguments& arguments) {
  const LimitedMemory limit(memoryLimit.failing, memoryLimit.mostPoints * sizeof(double));
  return Call(function, arguments);
}

// Which allocation of the call fails: what follows the arguments in the input. Most inputs end before, and none fails.
std::int64_t ReadFailingAllocation(Reader& reader) {
  const std::uint8_t number = reader.Byte();
  return number == 0 ? INT64_MAX : number;
}

bool IsChart(const Target& target) { return target.function->result[0] == 'X'; }

bool AsksOnceATable(const Target& target, const Arguments& arguments) {
  if (target.function->name != "PowerReverseIndSampBinom") return false;
  const std::int32_t method = target.Integer(arguments, "method");
  return method >= 0 && method <= 2;
}

void BoundSize(double largest, Argument& argument) {
  if (argument.number > largest && argument.number < uncountable) argument.number = largest;
  argument.integer = std::min(argument.integer, static_cast<std::int32_t>(largest));
}

void BoundSearch(std::int64_t mostQuestions, Argument& argument) {
  argument.isNull = false;
  argument.stopRequest.stopsAt = std::min(argument.stopRequest.stopsAt, mostQuestions);
}

void BoundExactWork(const Target& target, Arguments& arguments) {
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (IsSampleSize(target.names[i])) BoundSize(IsChart(target) ? largestChartedSize : largestExactSize, arguments[i]);
    if (target.function->arguments[i] == 's' && IsSearch(target))
      BoundSearch(AsksOnceATable(target, arguments) ? mostQuestionsOfTables : mostStopQuestions, arguments[i]);
  }
}

[[noreturn]] void Fail(const char* what, const Target& target, const Arguments& arguments) {
  std::fprintf(stderr, "%s: %s\n", what, Describe(target, arguments).c_str());
  std::abort();
}

Outcome CallOnce(const Target& target, const Arguments& arguments) {
  const Watch watch(Describe(target, arguments));
  return Observe(target, arguments, CallWithLimitedMemory);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Reader reader(data, size);
  const Target& target = ReadTarget(reader);
  Arguments arguments = ReadArguments(target, reader);
  const bool isExact = EnumeratesSamples(target, arguments);
  if (isExact) BoundExactWork(target, arguments);
  memoryLimit = {ReadFailingAllocation(reader), isExact ? mostExactPoints : mostChartPoints};

  const Outcome outcome = CallOnce(target, arguments);
  if (!outcome.problems.empty()) Fail(outcome.problems.front().c_str(), target, arguments);
  const Outcome again = CallOnce(target, arguments);
  if (outcome.ranOutOfMemory != again.ranOutOfMemory || outcome.bits != again.bits)
    Fail("not the same twice", target, arguments);
  return 0;
}
