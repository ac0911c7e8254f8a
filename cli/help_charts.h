#ifndef KELPOWER_CLI_HELP_CHARTS_H
#define KELPOWER_CLI_HELP_CHARTS_H

#include <string>

#include "model/test.h"
#include "words/render.h"

/// The charts of a test, and the options that they take.
std::string ChartSection(const planner::Test& test, const planner::Highlights& highlights);

#endif
