#ifndef KELPOWER_CLI_HELP_INPUTS_H
#define KELPOWER_CLI_HELP_INPUTS_H

#include <string>
#include <string_view>
#include <vector>

#include "model/test.h"

// What help and manual pages tell of an input.

/// The option's name and its other names: "n", "sample-size".
std::vector<std::string> NamesOf(const planner::Parameter& parameter);

/// What stands for the value of an option: "NUMBER"; empty for a flag.
std::string_view KindOfValue(const planner::Parameter& parameter);

/// The meaning with the inputs in it named as options, and with the unit.
std::string MeaningOf(const planner::Parameter& parameter);

/// What the option takes, and what it is unless given; empty for a flag.
std::string RangeOf(const planner::Test& test, const planner::Parameter& parameter);

/// The commonest call with two powers to reach, without the program's name.
std::string CallOfTable(const planner::Test& test);

#endif
