#ifndef KELPOWER_CLI_TERMINAL_H
#define KELPOWER_CLI_TERMINAL_H

#include <cstdio>

#include "words/render.h"

/// Colours when `stream` is a terminal that shows them and NO_COLOR is not set, else none.
planner::Highlights HighlightsFor(std::FILE* stream);

struct TerminalSize {
  int columns;
  int lines;
};

/// The size of the terminal that `stream` goes to; 79 by 24 characters when it goes elsewhere.
TerminalSize SizeOf(std::FILE* stream);

// Each system has a file of its own for these.

/// Lets the standard streams take text as it is. To be called first.
void PrepareStandardStreams();

/// Lets the standard input give its bytes as they are.
void PrepareStandardInput();

/// Whether `stream` is a terminal.
bool IsTerminal(std::FILE* stream);

/// Whether `stream` is a terminal that understands escape sequences, as far as the system knows.
bool ShowsColors(std::FILE* stream);

/// The columns and lines that the terminal of `stream` shows, 0 where they are not known.
TerminalSize WindowOf(std::FILE* stream);

#endif
