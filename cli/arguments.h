#pragma once

#include "planner/inputs.h"
#include "planner/test.h"

enum class Command { Overview, Version, List, TestHelp, Solve };

enum class Format { Text, Json, Csv, Markdown };

/// What the command line asks for.
struct Request {
  Command command = Command::Overview;
  Format format = Format::Text;
  const planner::Test* test = nullptr;  // of TestHelp and Solve
  planner::Given given;                 // of Solve
};

/// Reads the command line; throws a planner::InputError when it is wrong.
Request ParseArguments(int argc, const char* const* argv);
