#ifndef KELPOWER_TESTS_CLI_RUN_H
#define KELPOWER_TESTS_CLI_RUN_H

#include <string>
#include <vector>

/// What a run of the program left behind.
struct Outcome {
  int status;  // -1 when it did not end by itself
  std::string out;
  std::string err;
};

/// Runs the program with these arguments.
Outcome RunProgram(const std::vector<std::string>& arguments);

/// The words of a line that single spaces separate.
std::vector<std::string> Words(const std::string& line);

#endif
