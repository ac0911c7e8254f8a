#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include "terminal.h"

namespace {

HANDLE HandleOf(std::FILE* stream) { return reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream))); }

}  // namespace

void PrepareStandardStreams() {
  // The same bytes as on every other system, without a carriage return before the end of a line.
  _setmode(_fileno(stdout), _O_BINARY);
  _setmode(_fileno(stderr), _O_BINARY);
  SetConsoleOutputCP(CP_UTF8);
}

void PrepareStandardInput() { _setmode(_fileno(stdin), _O_BINARY); }

bool IsTerminal(std::FILE* stream) {
  // The null device, too, is a character device.
  DWORD mode = 0;
  return _isatty(_fileno(stream)) != 0 && GetConsoleMode(HandleOf(stream), &mode) != 0;
}

bool ShowsColors(std::FILE* stream) {
  DWORD mode = 0;
  const HANDLE console = HandleOf(stream);
  return GetConsoleMode(console, &mode) != 0 && SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

TerminalSize WindowOf(std::FILE* stream) {
  CONSOLE_SCREEN_BUFFER_INFO info{};
  if (GetConsoleScreenBufferInfo(HandleOf(stream), &info) == 0) return {0, 0};
  return {info.srWindow.Right - info.srWindow.Left + 1, info.srWindow.Bottom - info.srWindow.Top + 1};
}
