// Compares the library with reference cases; see the usage text below.

#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>
#include <vector>

#include "achieved.h"
#include "engine.h"
#include "support/platform.h"

namespace {

using namespace keltest;

constexpr const char* usage =
    "usage: kelpower_vectors [options] cases.jsonl...\n"
    "Calls the function of every case and compares what it gives with the reference.\n"
    "  --achieved FILE    fail too when a function's largest difference has grown beyond that stored in FILE,\n"
    "                     or in the file that this platform has beside it\n"
    "  --update           store the differences of this run in that file instead\n"
    "  --superseded FILE  the cases whose references are not what the library is to give\n"
    "  --function NAME    only the cases of this function\n"
    "  --line N           only the case on this line\n"
    "  --exported         skip functions that the library does not export, instead of failing\n"
    "  --all              print every failure, not only the first five of a function\n";

constexpr std::size_t failuresShown = 5;

struct Options {
  std::vector<std::string> files;
  std::string achieved;
  std::string superseded;
  std::string function;
  std::size_t line = 0;
  bool updates = false;
  bool onlyExported = false;
  bool showsAll = false;
};

bool Parse(int argc, char** argv, Options& options) {
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    const bool hasNext = i + 1 < argc;
    if (argument == "--update") {
      options.updates = true;
    } else if (argument == "--exported") {
      options.onlyExported = true;
    } else if (argument == "--all") {
      options.showsAll = true;
    } else if (argument == "--achieved" && hasNext) {
      options.achieved = argv[++i];
    } else if (argument == "--superseded" && hasNext) {
      options.superseded = argv[++i];
    } else if (argument == "--function" && hasNext) {
      options.function = argv[++i];
    } else if (argument == "--line" && hasNext) {
      options.line = std::stoul(argv[++i]);
    } else if (argument[0] != '-') {
      options.files.push_back(argument);
    } else {
      return false;
    }
  }
  return !options.files.empty() && !(options.updates && options.achieved.empty());
}

std::vector<VectorCase> Select(const Options& options) {
  std::vector<VectorCase> selected;
  for (const std::string& file : options.files) {
    std::vector<VectorCase> cases = ReadCases(file);
    if (!options.superseded.empty()) Supersede(options.superseded, std::filesystem::path(file).stem().string(), cases);
    for (VectorCase& vectorCase : cases) {
      if (!options.function.empty() && vectorCase.function != options.function) continue;
      if (options.line != 0 && vectorCase.line != options.line) continue;
      if (options.onlyExported && !Find(Exports(), vectorCase.function)) continue;
      selected.push_back(std::move(vectorCase));
    }
  }
  return selected;
}

void PrintDifference(double difference) {
  if (difference == 0)
    std::printf("%10s", "0");
  else
    std::printf("%10.2g", difference);
}

void PrintSummary(const std::string& name, const Summary& summary) {
  std::printf("%-42s %6zu %6zu %6zu %6zu", name.c_str(), summary.cases, summary.loose, summary.nearTie,
              summary.findings.failures.size());
  for (const Worst& worst : summary.findings.worst) PrintDifference(worst.difference);
  std::printf("\n");
}

void PrintFailures(const Summary& summary, bool showsAll) {
  const auto& failures = summary.findings.failures;
  const std::size_t shown = showsAll ? failures.size() : std::min(failures.size(), failuresShown);
  for (std::size_t i = 0; i < shown; ++i) std::printf("FAILED %s\n", failures[i].c_str());
  if (shown < failures.size()) std::printf("       and %zu more\n", failures.size() - shown);
}

// Returns the number of failures.
std::size_t Print(const std::map<std::string, Summary>& summaries, bool showsAll) {
  std::printf("%-42s %6s %6s %6s %6s %9s %9s %9s\n", "function", "cases", "loose", "tie", "failed", "value", "grid",
              "float ulp");
  std::size_t failures = 0;
  for (const auto& [name, summary] : summaries) {
    PrintSummary(name, summary);
    failures += summary.findings.failures.size();
  }
  std::printf("\nLargest differences (loose and tie cases are called but not compared):\n");
  for (const auto& [name, summary] : summaries)
    for (const Worst& worst : summary.findings.worst)
      if (worst.difference > 0) std::printf("%s\n", worst.where.c_str());
  std::printf("\n");
  for (const auto& [name, summary] : summaries) PrintFailures(summary, showsAll);
  return failures;
}

// Returns the number of differences that have grown.
std::size_t CompareWithStored(const Options& options, const std::map<std::string, Summary>& summaries) {
  if (options.achieved.empty()) return 0;
  const Achieved measured = Measured(summaries);
  if (options.updates) {
    WriteAchieved(FileOfPlatform(options.achieved), measured);
    return 0;
  }
  const std::vector<std::string> growth = Growth(ReadAchieved(FileToCompareWith(options.achieved)), measured);
  for (const std::string& message : growth) std::printf("GREW   %s\n", message.c_str());
  return growth.size();
}

int Run(const Options& options) {
  const std::vector<VectorCase> cases = Select(options);
  const std::map<std::string, Summary> summaries = RunCases(Exports(), cases);
  const std::size_t failures = Print(summaries, options.showsAll);
  if (failures > 0 && options.updates) {
    std::printf("%zu cases, %zu failures; nothing stored\n", cases.size(), failures);
    return 1;
  }
  const std::size_t grown = CompareWithStored(options, summaries);
  std::printf("%zu cases, %zu failures, %zu grown differences\n", cases.size(), failures, grown);
  return cases.empty() || failures > 0 || grown > 0 ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  try {
    if (!Parse(argc, argv, options)) {
      std::fputs(usage, stderr);
      return 2;
    }
    return Run(options);
  } catch (const std::exception& e) {
    std::fprintf(stderr, "%s\n", e.what());
    return 2;
  }
}
