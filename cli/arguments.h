#ifndef KELPOWER_CLI_ARGUMENTS_H
#define KELPOWER_CLI_ARGUMENTS_H

#include <string>

#include "model/chart.h"
#include "model/test.h"

enum class Command { Overview, Version, List, TestHelp, Solve, Chart };

enum class Format { Text, Json, Csv, Markdown };

/// What the command line asks for.
struct Request {
  Command command = Command::Overview;
  Format format = Format::Text;
  const planner::Test* test = nullptr;  // of TestHelp, Solve and Chart
  planner::InputValues values;          // of Solve and Chart
  bool isExplained = false;             // of Solve: what is behind the answer is told too
  planner::ChartRequest chart;
  std::string output;  // the file of a chart; empty for the standard output
};

/// Reads the command line; throws a UsageError or a planner::InputError when it is wrong.
Request ParseArguments(int argc, const char* const* argv);

#endif
