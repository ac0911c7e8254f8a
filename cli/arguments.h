#ifndef KELPOWER_CLI_ARGUMENTS_H
#define KELPOWER_CLI_ARGUMENTS_H

#include <optional>
#include <string>
#include <vector>

#include "model/chart.h"
#include "model/test.h"
#include "picture.h"
#include "solve/designs.h"

enum class Command {
  Overview,
  Version,
  List,
  TestHelp,
  RunHelp,
  EffectHelp,
  Solve,
  Table,
  Chart,
  Run,
  Effect,
  ManPage,   // of the command in `words`
  Complete,  // what the last of `words` may become
};

enum class Format { Text, Json, Csv, Markdown, Ndjson };

/// What the command line asks for.
struct Request {
  Command command = Command::Overview;
  Format format = Format::Text;
  const planner::Test* test = nullptr;  // of TestHelp, Solve, Table and Chart; of Run where it is named
  planner::InputValues values;          // of Solve, Chart and Effect
  std::vector<planner::Alternatives> alternatives = {};  // of Table, in the order of the command line
  bool isExplained = false;                              // of Solve and Effect: what is behind the answer is told too
  planner::ChartRequest chart;
  PictureOptions picture;  // of a chart
  std::string input;       // the file of Run; "-" for the standard input
  std::string output;      // the file of a chart or of Run; empty for the standard output
  std::string save;        // the file that keeps the design of Solve or Table; empty for none
  std::optional<Format> formatGiven = {};
  std::vector<std::string> words = {};  // of ManPage and Complete
  unsigned jobs = 0;                    // threads of Table and Run; 0 for one on each core
};

/// Reads the command line; throws a UsageError or a planner::InputError when it is wrong.
Request ParseArguments(int argc, const char* const* argv);

#endif
