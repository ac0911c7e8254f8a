#pragma once

#include <cstdio>

#include "planner/render.h"

/// Colours when `stream` is a terminal that shows them and NO_COLOR is not set, else none.
planner::Paint PaintFor(std::FILE* stream);

struct TerminalSize {
  int columns;
  int lines;
};

/// The size of the terminal that `stream` goes to; 79 by 24 characters when it goes elsewhere.
TerminalSize SizeOf(std::FILE* stream);
