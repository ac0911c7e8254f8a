// Calls every export with invalid and extreme arguments, one at a time in place of those of a typical case. Whatever
// the answer is, the call returns, a second call gives the same bits, and arrays that are only read stay as they are.

#include <gtest/gtest.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <limits>
#include <nlohmann/json.hpp>
#include <sstream>

#include "vector_case.h"

namespace {

using namespace keltest;
using nlohmann::json;
using Arguments = std::vector<Argument>;

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

constexpr int kSecondsACall = 5;

// --- The watch: ends the program when a call takes too long, and says which. ---

char watchedCall[4096];

extern "C" void ReportAndAbort(int) {
  const char title[] = "does not return: ";
  if (write(STDERR_FILENO, title, sizeof title - 1) < 0 ||
      write(STDERR_FILENO, watchedCall, std::strlen(watchedCall)) < 0)
    _exit(2);
  std::abort();
}

// Processor time is measured, so that a busy machine does not matter.
void SetTimer(int seconds) {
  const itimerval timer{{0, 0}, {seconds, 0}};
  setitimer(ITIMER_PROF, &timer, nullptr);
}

class Watch {
public:
  explicit Watch(const std::string& call) {
    std::snprintf(watchedCall, sizeof watchedCall, "%s\n", call.c_str());
    std::signal(SIGPROF, ReportAndAbort);
    SetTimer(kSecondsACall);
  }
  ~Watch() { SetTimer(0); }
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;
};

// --- What is swept ---

std::string VectorFolder() { return std::getenv("KELPOWER_VECTORS"); }

const std::vector<VectorCase>& AllCases() {
  static const std::vector<VectorCase> cases = [] {
    std::vector<VectorCase> all;
    for (const auto& entry : std::filesystem::directory_iterator(VectorFolder())) {
      if (entry.path().extension() != ".jsonl") continue;
      for (VectorCase& vectorCase : ReadCases(entry.path())) all.push_back(std::move(vectorCase));
    }
    return all;
  }();
  return cases;
}

// An export with the names of its arguments.
struct Target {
  const Function* function;
  std::vector<std::string> names;

  bool Has(const std::string& name) const { return std::find(names.begin(), names.end(), name) != names.end(); }

  std::int32_t Integer(const Arguments& arguments, const std::string& name) const {
    const auto position = std::find(names.begin(), names.end(), name) - names.begin();
    return arguments[static_cast<std::size_t>(position)].integer;
  }
};

Target MakeTarget(const Function& function) {
  static const json signatures = [] {
    std::ifstream file(VectorFolder() + "/signatures.json");
    return json::parse(file);
  }();
  Target target{&function, {}};
  for (const auto& argument : signatures.at(function.name)[1]) target.names.push_back(argument[0]);
  return target;
}

bool Contains(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

// Whether the call visits every outcome that samples of its sizes can have.
bool EnumeratesSamples(const Target& target, const Arguments& arguments) {
  if (target.Has("exact")) return target.Integer(arguments, "exact") != 0;
  return Contains(target.function->name, "OneSampBi") && target.Has("method") &&
         target.Integer(arguments, "method") != 0;
}

// Arguments with which the work that is asked for has no bound, so that nothing is wrong when it takes long.
struct Exception {
  const char* reason;
  bool (*holds)(const Target& target, const Arguments& arguments, std::size_t position, double value);
};

const Exception kUnboundedWork[] = {
    {"an axis has as many points as its step demands",
     [](const Target& target, const Arguments&, std::size_t position, double value) {
       return Contains(target.names[position], "step") && (value == kTiny || value == kDenormal);
     }},
    {"an exact computation visits every outcome that samples of the size can have",
     [](const Target& target, const Arguments& arguments, std::size_t position, double value) {
       const std::string& name = target.names[position];
       const bool isSize = Contains(name, "Size") || Contains(name, "Count");
       return isSize && value >= kHuge && EnumeratesSamples(target, arguments);
     }},
};

bool IsUnbounded(const Target& target, const Arguments& arguments, std::size_t position, double value) {
  return std::any_of(std::begin(kUnboundedWork), std::end(kUnboundedWork),
                     [&](const Exception& exception) { return exception.holds(target, arguments, position, value); });
}

bool IsAxisEnd(const std::string& name) {
  return name == "from" || name == "to" || Contains(name, "sampleSizeFrom") || Contains(name, "sampleSizeTo") ||
         Contains(name, "minSampleSize") || Contains(name, "maxSampleSize");
}

// The length of the arrays that an argument counts.
std::int32_t ArrayLength(const Arguments& arguments, const std::string& types) {
  std::size_t length = INT_MAX;
  for (std::size_t i = 0; i < types.size(); ++i)
    if (types[i] == 'p' || types[i] == 'P') length = std::min(length, arguments[i].array.size());
  return static_cast<std::int32_t>(length);
}

std::vector<std::int32_t> IntegersFor(const std::string& name, std::int32_t arrayLength) {
  std::vector<std::int32_t> values = IsAxisEnd(name) ? kAxisEnds : kInts;
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
        if (!IsUnbounded(target, typical, position, value)) add().number = value;
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
      if (!Contains(target.function->name, "Reverse")) add().isNull = true;
      break;
    default: break;
  }
  return variations;
}

// --- One call ---

std::string Describe(const Target& target, const Arguments& arguments) {
  std::ostringstream text;
  text.precision(17);
  text << target.function->name << "(";
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const char type = target.function->arguments[i];
    text << (i == 0 ? "" : ", ") << target.names[i] << " ";
    if (type == 'd') text << arguments[i].number;
    if (type == 'i' || type == 'b') text << arguments[i].integer;
    if (type == 's') text << (arguments[i].isNull ? 0 : arguments[i].stopRequest.stopsAt);
    for (const double value : arguments[i].array) text << value << " ";
  }
  return text.str() + ")";
}

// All that a call gives, as bits.
using Outcome = std::vector<std::uint64_t>;

void Append(Outcome& outcome, double number) {
  std::uint64_t bits;
  std::memcpy(&bits, &number, sizeof bits);
  outcome.push_back(bits);
}

void Append(Outcome& outcome, const double* numbers, std::int64_t count) {
  outcome.push_back(static_cast<std::uint64_t>(count));
  outcome.push_back(numbers != nullptr);
  for (std::int64_t i = 0; numbers && i < count; ++i) Append(outcome, numbers[i]);
}

void Append(Outcome& outcome, const std::vector<double>& numbers) {
  Append(outcome, numbers.data(), static_cast<std::int64_t>(numbers.size()));
}

void AppendAndRelease(Outcome& outcome, Result& result, const std::string& type) {
  if (type == "d") Append(outcome, result.number);
  if (type == "XY") {
    XYPlot& curve = result.curve;
    EXPECT_GE(curve.count, 0);
    Append(outcome, curve.x, curve.count);
    Append(outcome, curve.y, curve.count);
    FreeMemXYPlot(&curve);
  }
  if (type == "XYZ") {
    XYZPlot& surface = result.surface;
    EXPECT_GE(surface.xCount, 0);
    EXPECT_GE(surface.yCount, 0);
    Append(outcome, surface.x, surface.xCount);
    Append(outcome, surface.y, surface.yCount);
    Append(outcome, surface.z, std::int64_t{surface.xCount} * surface.yCount);
    FreeMemXYZPlot(&surface);
  }
}

Outcome CallOnce(const Target& target, const Arguments& arguments) {
  Arguments copy = arguments;
  Result result = Call(*target.function, copy);
  Outcome outcome;
  AppendAndRelease(outcome, result, target.function->result);
  for (std::size_t i = 0; i < copy.size(); ++i) {
    Outcome before;
    Append(before, arguments[i].array);
    Outcome after;
    Append(after, copy[i].array);
    if (target.function->arguments[i] == 'p') {
      EXPECT_TRUE(before == after) << target.names[i] << " was changed";
    }
    outcome.insert(outcome.end(), after.begin(), after.end());
    outcome.push_back(static_cast<std::uint64_t>(copy[i].stopRequest.asked));
  }
  return outcome;
}

void CallTwice(const Target& target, const Arguments& arguments) {
  const std::string call = Describe(target, arguments);
  SCOPED_TRACE(call);
  Outcome first;
  {
    const Watch watch(call);
    first = CallOnce(target, arguments);
  }
  const Watch watch(call);
  EXPECT_TRUE(first == CallOnce(target, arguments)) << "two calls differ";
}

// The first typical case, and the first typical one with an exact computation; without a typical case the first of all.
std::vector<Arguments> TypicalCalls(const Target& target) {
  std::vector<Arguments> calls;
  const auto add = [&](bool onlyTypical, bool onlyExact) {
    for (const VectorCase& vectorCase : AllCases()) {
      if (vectorCase.function != target.function->name) continue;
      if (onlyTypical && vectorCase.kind != "typical") continue;
      const Arguments arguments = MakeArguments(vectorCase, target.function->arguments);
      if (onlyExact && !EnumeratesSamples(target, arguments)) continue;
      calls.push_back(arguments);
      return;
    }
  };
  add(true, false);
  add(true, true);
  if (calls.empty()) add(false, false);
  return calls;
}

// Ends a search that would go on for ever. A power has bounded work and is left to finish.
void Bound(Arguments& arguments, const Function& function) {
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (function.arguments[i] != 's') continue;
    arguments[i].isNull = false;
    arguments[i].stopRequest.stopsAt = Contains(function.name, "Reverse") ? kQuestions : INT64_MAX;
  }
}

class Sweep : public testing::TestWithParam<const Function*> {};

TEST_P(Sweep, ReturnsTheSameTwice) {
  const Target target = MakeTarget(*GetParam());
  const std::vector<Arguments> calls = TypicalCalls(target);
  ASSERT_FALSE(calls.empty()) << "there is no case to start from";
  for (Arguments typical : calls) {
    Bound(typical, *target.function);
    for (std::size_t position = 0; position < typical.size(); ++position)
      for (const Arguments& arguments : Variations(target, typical, position)) CallTwice(target, arguments);
  }
}

// The functions that release a record take no values to sweep.
std::vector<const Function*> SweptFunctions() {
  std::vector<const Function*> functions;
  for (const Function& function : Exports())
    if (!Contains(function.name, "FreeMem")) functions.push_back(&function);
  return functions;
}

INSTANTIATE_TEST_SUITE_P(Exports, Sweep, testing::ValuesIn(SweptFunctions()),
                         [](const auto& swept) { return swept.param->name; });

}  // namespace
