// Measures the distribution functions against their references and writes the page of it.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "compiler.h"
#include "methods.h"
#include "promise.h"
#include "reference_table.h"
#include "searches.h"
#include "support/platform.h"

namespace {

// A call is timed as the fastest of a few runs of so many calls: interruptions only ever add. Of calls that take long,
// in nanoseconds, one makes a run.
constexpr int callsPerRun = 50;
constexpr int runs = 5;
constexpr double longCall = 2e5;

struct Times {
  double median;
  double longest;
};

double NanosecondsPerCall(const Function& function, const Arguments& arguments, int calls) {
  using Clock = std::chrono::steady_clock;
  volatile double sink = 0;
  const Clock::time_point start = Clock::now();
  for (int i = 0; i < calls; ++i) sink = function.call(arguments).value;
  const double total = std::chrono::duration<double, std::nano>(Clock::now() - start).count();
  static_cast<void>(sink);
  return total / calls;
}

double FastestNanoseconds(const Function& function, const Arguments& arguments) {
  double fastest = NanosecondsPerCall(function, arguments, 1);
  const int calls = fastest > longCall ? 1 : callsPerRun;
  for (int run = 0; run < runs; ++run) fastest = std::min(fastest, NanosecondsPerCall(function, arguments, calls));
  return fastest;
}

std::map<FunctionRegion, Times> MeasureTimes(const std::vector<ReferenceRow>& rows) {
  std::map<FunctionRegion, std::vector<double>> samples;
  for (const ReferenceRow& row : rows)
    samples[{row.function, row.region}].push_back(FastestNanoseconds(FindFunction(row.function), row.arguments));
  std::map<FunctionRegion, Times> times;
  for (auto& [key, values] : samples) {
    std::sort(values.begin(), values.end());
    times[key] = {values[values.size() / 2], values.back()};
  }
  return times;
}

std::string Short(double value) {
  char text[32];
  std::snprintf(text, sizeof text, value == 0 ? "0" : "%.1e", value);
  return text;
}

std::string Nanoseconds(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.0f", value);
  return text;
}

struct Measurement {
  std::map<FunctionRegion, Worst> errors;
  std::map<FunctionRegion, Times> times;
  std::map<FunctionRegion, Search> searches;
};

// The cells of a row that both tables have.
void WriteErrors(std::ostream& out, const Function& function, const Worst& worst, const Times& times) {
  out << " | " << worst.cases << " | " << Short(worst.largest.absolute) << " | "
      << (worst.largest.absolute > 0 ? Describe(*worst.byAbsolute) : "") << " | " << Short(worst.largest.relative)
      << " | " << (worst.largest.relative > 0 ? Describe(*worst.byRelative) : "") << " | ";
  if (function.kind == Kind::probability) out << Short(worst.largest.relativeOfSmall) << " | ";
  out << Nanoseconds(times.median) << " | " << Nanoseconds(times.longest) << " |\n";
}

void WriteHeader(std::ostream& out, const Function& function, const std::string& columns, int count) {
  const bool hasSmall = function.kind == Kind::probability;
  out << "| " << columns << " | Largest absolute error | at | Largest relative error | at |"
      << (hasSmall ? " Relative error of values up to 1e-12 |" : "") << " Median time (ns) | Longest (ns) |\n|";
  for (int i = 0; i < count + 6 + (hasSmall ? 1 : 0); ++i) out << "---|";
  out << "\n";
}

void WriteFunction(std::ostream& out, const Function& function, const Measurement& measured) {
  const Method& method = FindMethod(function.name);
  out << "\n## " << function.name << "\n\n" << method.meaning << "\n\n";
  out << "Method: " << method.method << "\n\nSource: " << method.source << "\n\n";
  WriteHeader(out, function, "Region | Cases", 2);
  for (const auto& [key, worst] : measured.errors) {
    if (key.first != function.name || measured.searches.count(key) > 0) continue;
    out << "| " << key.second;
    WriteErrors(out, function, worst, measured.times.at(key));
  }
}

// The rows of a searched region are the worst points found in it.
void WriteSearches(std::ostream& out, const Function& function, const Measurement& measured) {
  bool isFirst = true;
  for (const auto& [key, worst] : measured.errors) {
    const auto search = measured.searches.find(key);
    if (key.first != function.name || search == measured.searches.end()) continue;
    if (isFirst) {
      out << "\nLargest errors found by searching:\n\n";
      WriteHeader(out, function, "Region | also within | Points tried | Seeds | Kept", 5);
    }
    isFirst = false;
    out << "| " << key.second << " | " << search->second.ranges << " | " << search->second.evaluations << " | "
        << search->second.seeds;
    WriteErrors(out, function, worst, measured.times.at(key));
  }
}

// The processor by its own name, where the system tells it.
std::string Machine() {
  std::ifstream file("/proc/cpuinfo");
  for (std::string line; std::getline(file, line);)
    if (line.rfind("model name", 0) == 0) return line.substr(line.find(':') + 2);
  return "unnamed processor";
}

// Measured once, with the references at hand, on Boost.Math 1.81.
void WriteWhyNotBoost(std::ostream& out) {
  out << "\n## Where plain Boost.Math 1.81 falls short\n\n"
         "The methods above replace those of Boost.Math where these were measured to lose digits or to fail:\n\n"
         "- Incomplete beta function in double precision: relative error 5.9e-11 at shapes near 1e6. `CdfBin` built on "
         "it "
         "is off by\n  2e-10 at ten million trials, `PdfBin` by 5e-10.\n"
         "- Noncentral t: relative error 1.2e-7 at T(-3.37; 35, 2.99); promoted to extended precision still 9e-11.\n"
         "- Noncentral F: absolute error 5.5e-13 at 4 and 1e5 degrees of freedom and noncentrality 0.\n"
         "- Quantile of t: relative error 4.5e-12 near p = 0.5; promoted 1.4e-13.\n"
         "- The quantiles throw `evaluation_error` in spite of a policy that ignores errors.\n"
         "- `lgamma` at its poles gives NaN under such a policy; here it is infinite.\n";
}

// Names every region whose errors exceed what the page promises.
bool KeepsPromises(const std::map<FunctionRegion, Worst>& errors) {
  bool isKept = true;
  for (const auto& [key, worst] : errors) {
    const auto& [function, region] = key;
    if (!IsPlanned(region) || PromiseOf(FindFunction(function)).IsKeptBy(worst.largest)) continue;
    isKept = false;
    std::fprintf(stderr, "%s, %s: the errors %s and relative %s exceed what is promised\n", function.c_str(),
                 region.c_str(), Short(worst.largest.absolute).c_str(), Short(worst.largest.relative).c_str());
  }
  return isKept;
}

void WritePage(std::ostream& out, const std::vector<ReferenceRow>& rows, const Measurement& measured) {
  out << "# Accuracy and speed of the distribution functions\n\n"
         "This page is generated by `kelpower_accuracy` from the references in `tests/kelcommon/references`, "
      << rows.size()
      << " values\ncomputed in multiple precision and rounded to double. It states what was measured on them and "
         "nothing "
         "more.\n\n"
         "The error is the distance from the reference. Relative errors of probabilities are given for values above "
         "1e-12, "
         "and\nfor those from 1e-290 to 1e-12 in a column of their own; of the logarithm of the gamma function where "
         "it "
         "exceeds 1.\nArguments are in the order of the call. An error of `inf` is a wrong count, error code or "
         "special "
         "value.\n\n"
         "Regions have been searched for their largest errors: from random points in them, evenly spread in the "
         "logarithm, the\nworst climb by random steps of all sizes towards larger errors, this build's and earlier "
         "ones'. Most points tried were\nonly compared with another build, and those measured in multiple precision "
         "where the two differ most. The worst found\nare kept as references, and measured here "
         "(`tools/references/search_worst.py`).\n\n"
         "Promised are, except in regions beyond planning: probabilities to 1e-14, and to 1e-12 of themselves above "
         "1e-12; quantiles\nof t and F to 1e-15 of themselves, other quantiles to 1e-13. The tests hold the "
         "references to it.\n\n"
         "Times are of one machine ("
      << Machine() << "), compiler (" << Compiler()
      << ") and mathematics library,\nand differ on others: the median and the longest "
         "over "
         "the\nrows of a region, each row the fastest mean of "
      << runs << " runs of " << callsPerRun << " calls, or of one call that takes long.\n";
  for (const Function& function : Functions()) {
    WriteFunction(out, function, measured);
    WriteSearches(out, function, measured);
  }
  WriteWhyNotBoost(out);
}

int Usage() {
  std::fputs(
      "usage: kelpower_accuracy [page.md]              write the page, by default to the standard output;\n"
      "                                              fails, without a page, where an error exceeds what is promised\n"
      "       kelpower_accuracy --achieved [file.csv]  store the present errors as those that must not grow\n",
      stderr);
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string folder = KELCOMMON_REFERENCES;
  const std::string searchesPath = folder + "/searched.csv";
  const std::vector<ReferenceRow> rows = ReadReferences(folder);
  if (argc >= 2 && std::strcmp(argv[1], "--achieved") == 0) {
    if (argc > 3) return Usage();
    WriteAchieved(argc == 3 ? argv[2] : FileOfPlatform(folder + "/achieved.csv"), MeasureErrors(rows));
    return 0;
  }
  if (argc > 2 || (argc == 2 && argv[1][0] == '-')) return Usage();
  const Measurement measured = {MeasureErrors(rows), MeasureTimes(rows), ReadSearches(searchesPath)};
  if (!KeepsPromises(measured.errors)) return 1;
  if (argc == 1) {
    WritePage(std::cout, rows, measured);
    return 0;
  }
  std::ofstream file(argv[1]);
  WritePage(file, rows, measured);
  if (file) return 0;
  std::fprintf(stderr, "cannot write %s\n", argv[1]);
  return 1;
}
