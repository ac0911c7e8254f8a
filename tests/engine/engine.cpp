#include "engine.h"

#include <cstring>
#include <iomanip>
#include <set>
#include <sstream>

namespace keltest {
namespace {

using nlohmann::json;

// A rounded-up size this near to a whole number depends on the last digits of the reference.
constexpr double tieMargin = 1e-7;

const std::set<std::string> doublePrecisionCharts = {
    "PlotNOverallTest",    "PlotNOverallTestFES", "PlotNSC",    "PlotNSCFES",
    "PlotNaSDOverallTest", "PlotNaESOverallTest", "PlotNaSDSC",
};

// Compares the outcome of one call. `what` names in the messages what is compared.
class Comparison {
public:
  Comparison(const VectorCase& vectorCase, Findings& findings) : case_(vectorCase), findings_(findings) {}

  void Fail(const std::string& message) {
    findings_.failures.push_back("line " + std::to_string(case_.line) + ": " + Describe(case_) + ": " + message);
  }

  void Number(const std::string& what, double actual, double expected, Metric metric) {
    const double difference = Difference(actual, expected, metric);
    Worst& worst = findings_.worst[static_cast<std::size_t>(metric)];
    const bool fails = !(difference <= Bound(metric));
    if (!fails && difference <= worst.difference) return;
    std::ostringstream text;
    text << std::setprecision(17) << what << " = " << actual << ", expected " << expected << ", difference "
         << std::setprecision(3) << difference;
    if (fails) Fail(text.str());
    if (difference > worst.difference)
      worst = {difference, "line " + std::to_string(case_.line) + ": " + Describe(case_) + ": " + text.str()};
  }

  void Count(const std::string& what, std::int64_t actual, std::int64_t expected) {
    if (actual != expected) Fail(what + " is " + std::to_string(actual) + ", expected " + std::to_string(expected));
  }

  // Reads `actual` only when it may be: not null, and as long as the reference, which is what its count says.
  void Array(const std::string& what, const double* actual, const json& expected, Metric metric) {
    if (expected.is_null() != (actual == nullptr)) return Fail(what + (actual ? " is not null" : " is null"));
    if (expected.is_null()) return;
    const std::vector<double> numbers = ToArray(expected);
    for (std::size_t i = 0; i < numbers.size(); ++i)
      Number(what + "[" + std::to_string(i) + "]", actual[i], numbers[i], metric);
  }

  void Curve(const XYPlot& actual, const json& expected, Metric metric) {
    Count("count", actual.count, expected.at("count"));
    const bool readable = actual.count == expected["count"];
    Array("x", actual.x, readable ? expected.at("x") : Emptied(expected.at("x")), Metric::Grid);
    Array("y", actual.y, readable ? expected.at("y") : Emptied(expected.at("y")), metric);
  }

  void Surface(const XYZPlot& actual, const json& expected, Metric metric) {
    Count("xCount", actual.xCount, expected.at("xCount"));
    Count("yCount", actual.yCount, expected.at("yCount"));
    const bool xReadable = actual.xCount == expected["xCount"];
    const bool yReadable = actual.yCount == expected["yCount"];
    Array("x", actual.x, xReadable ? expected.at("x") : Emptied(expected.at("x")), Metric::Grid);
    Array("y", actual.y, yReadable ? expected.at("y") : Emptied(expected.at("y")), Metric::Grid);
    Array("z", actual.z, xReadable && yReadable ? expected.at("z") : Emptied(expected.at("z")), metric);
  }

private:
  // With a wrong count the elements cannot be read; whether there is an array can still be compared.
  static json Emptied(const json& array) { return array.is_null() ? array : json::array(); }

  const VectorCase& case_;
  Findings& findings_;
};

bool SameBits(const std::vector<double>& a, const std::vector<double>& b) {
  return a.size() == b.size() && (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(double)) == 0);
}

void CompareResult(const Function& function, const Result& actual, const VectorCase& vectorCase,
                   Comparison& comparison) {
  const bool isDouble = function.result == "d" || StoresDoublePrecision(function.name);
  const Metric metric = isDouble ? Metric::Value : Metric::Single;
  const json& expected = vectorCase.result;
  if (function.result == "d") comparison.Number("result", actual.number, ToDouble(expected), metric);
  if (function.result == "XY") comparison.Curve(actual.curve, expected, metric);
  if (function.result == "XYZ") comparison.Surface(actual.surface, expected, metric);
  if (function.result == "void" && !expected.is_null()) comparison.Fail("a result is expected, the function has none");
}

void CompareArguments(const Function& function, const std::vector<Argument>& before, const std::vector<Argument>& after,
                      const VectorCase& vectorCase, Comparison& comparison) {
  for (std::size_t i = 0; i < after.size(); ++i) {
    const std::string what = "argument " + std::to_string(i);
    const char type = function.arguments[i];
    const auto output = vectorCase.outputs.find(i);
    if (output != vectorCase.outputs.end()) {
      const std::vector<double> expected = ToArray(output->second);
      comparison.Count("size of " + what, static_cast<std::int64_t>(after[i].array.size()),
                       static_cast<std::int64_t>(expected.size()));
      if (after[i].array.size() == expected.size())
        for (std::size_t k = 0; k < expected.size(); ++k)
          comparison.Number(what + "[" + std::to_string(k) + "]", after[i].array[k], expected[k], Metric::Value);
    } else if (!SameBits(before[i].array, after[i].array)) {
      comparison.Fail(what + " was changed");
    }
    if (type == 's' && vectorCase.asked) comparison.Count("questions", after[i].stopRequest.asked, *vectorCase.asked);
  }
}

void Release(const std::vector<Function>& functions, const Function& function, Result& result) {
  const bool isCurve = function.result == "XY";
  if (!isCurve && function.result != "XYZ") return;
  const std::string name = isCurve ? "FreeMemXYPlot" : "FreeMemXYZPlot";
  const Function* release = Find(functions, name);
  if (!release) throw std::runtime_error("there is no " + name + " to release its record");
  std::vector<Argument> arguments(1);
  arguments[0].curve = &result.curve;
  arguments[0].surface = &result.surface;
  Call(*release, arguments);
}

// Whether the outcome of the case is to be compared.
bool Counts(const VectorCase& vectorCase, Summary& summary) {
  const bool isLoose = vectorCase.kind == "loose";
  const bool isNearTie = !isLoose && vectorCase.margin && *vectorCase.margin < tieMargin;
  if (isLoose) ++summary.loose;
  if (isNearTie) ++summary.nearTie;
  return !isLoose && !isNearTie;
}

void CallAndCompare(const std::vector<Function>& functions, const Function& function, const VectorCase& vectorCase,
                    bool compares, Comparison& comparison) {
  const std::vector<Argument> before = MakeArguments(vectorCase, function.arguments);
  std::vector<Argument> arguments = before;
  Result result = Call(function, arguments);
  if (compares) {
    CompareResult(function, result, vectorCase, comparison);
    CompareArguments(function, before, arguments, vectorCase, comparison);
  }
  Release(functions, function, result);
}

}  // namespace

bool StoresDoublePrecision(const std::string& function) { return doublePrecisionCharts.count(function) > 0; }

void RunCase(const std::vector<Function>& functions, const VectorCase& vectorCase, Summary& summary) {
  ++summary.cases;
  Comparison comparison(vectorCase, summary.findings);
  const Function* function = Find(functions, vectorCase.function);
  if (!function) return comparison.Fail("the library has no such function");
  try {
    CallAndCompare(functions, *function, vectorCase, Counts(vectorCase, summary), comparison);
  } catch (const std::exception& e) {
    comparison.Fail(e.what());
  }
}

std::map<std::string, Summary> RunCases(const std::vector<Function>& functions, const std::vector<VectorCase>& cases) {
  std::map<std::string, Summary> summaries;
  for (const VectorCase& vectorCase : cases) RunCase(functions, vectorCase, summaries[vectorCase.function]);
  return summaries;
}

}  // namespace keltest
