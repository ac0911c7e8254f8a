#ifndef KELPOWER_CLI_DESIGNS_H
#define KELPOWER_CLI_DESIGNS_H

#include "arguments.h"
#include "words/render.h"

/// Prints the answers to all alternatives of a design as one table. Gives whether it came to its end.
bool PrintTable(const Request& request, const planner::Highlights& highlights);

/// Keeps the design that the request describes in the file that it names, if it names one.
void SaveDesign(const Request& request);

/// Answers the designs of a file. Gives whether it came to its end.
bool RunFile(const Request& request);

#endif
