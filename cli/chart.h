#ifndef KELPOWER_CLI_CHART_H
#define KELPOWER_CLI_CHART_H

#include "arguments.h"

/// The chart for the standard output: drawn in characters, or in the format asked for. When a file is named it is
/// written there, and nothing is left to print.
std::string ChartAnswer(const Request& request);

#endif
