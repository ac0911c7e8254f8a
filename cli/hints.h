#ifndef KELPOWER_CLI_HINTS_H
#define KELPOWER_CLI_HINTS_H

#include <string>
#include <string_view>
#include <vector>

#include "model/test.h"

// Words that people type for what the program calls otherwise.

/// Other names of the test that can mean nothing else.
std::vector<std::string> OtherNamesOf(std::string_view test);

/// What to use in place of a word that names no test, as the end of a sentence; empty where nothing is known of it.
std::string HintForTest(std::string_view word);

/// What to use in place of an option that the test does not have, as the end of a sentence; empty where nothing is
/// known of it.
std::string HintForOption(const planner::Test& test, std::string_view option);

#endif
