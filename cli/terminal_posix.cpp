#include <sys/ioctl.h>
#include <unistd.h>

#include "terminal.h"

void PrepareStandardStreams() {}

void PrepareStandardInput() {}

bool IsTerminal(std::FILE* stream) { return isatty(fileno(stream)) != 0; }

bool ShowsColors(std::FILE* stream) { return IsTerminal(stream); }

TerminalSize WindowOf(std::FILE* stream) {
  winsize size{};
  if (ioctl(fileno(stream), TIOCGWINSZ, &size) != 0) return {0, 0};
  return {size.ws_col, size.ws_row};
}
