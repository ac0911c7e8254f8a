#include <windows.h>

#include <cstdlib>
#include <memory>
#include <stdexcept>

#include "gnuplot.h"

namespace {

struct Close {
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<void, Close>;

[[noreturn]] void RefuseTemporaryFile() {
  throw std::runtime_error("The chart cannot be drawn: no temporary file can be made.");
}

/// A file that gnuplot may inherit and that is gone when it is closed.
Handle TemporaryFile() {
  wchar_t folder[MAX_PATH + 1];
  wchar_t name[MAX_PATH + 1];
  if (GetTempPathW(MAX_PATH + 1, folder) == 0 || GetTempFileNameW(folder, L"kel", 0, name) == 0) RefuseTemporaryFile();
  SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
  const HANDLE file = CreateFileW(name, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                                  CREATE_ALWAYS, FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (file == INVALID_HANDLE_VALUE) RefuseTemporaryFile();
  return Handle(file);
}

void Rewind(HANDLE file) { SetFilePointer(file, 0, nullptr, FILE_BEGIN); }

void Write(HANDLE file, const std::string& text) {
  DWORD written = 0;
  const auto size = static_cast<DWORD>(text.size());
  if (WriteFile(file, text.data(), size, &written, nullptr) == 0 || written != size) {
    throw std::runtime_error("The chart cannot be drawn: the temporary file is full.");
  }
  Rewind(file);
}

std::string ContentOf(HANDLE file) {
  std::string content;
  char block[65536];
  DWORD count = 0;
  Rewind(file);
  while (ReadFile(file, block, sizeof block, &count, nullptr) != 0 && count > 0) content.append(block, count);
  return content;
}

/// Starts gnuplot over the files; null when there is none.
Handle Start(HANDLE in, HANDLE out, HANDLE err) {
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdInput = in;
  start.hStdOutput = out;
  start.hStdError = err;
  PROCESS_INFORMATION process{};
  wchar_t command[] = L"gnuplot";
  if (CreateProcessW(nullptr, command, nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process) == 0) return {};
  CloseHandle(process.hThread);
  return Handle(process.hProcess);
}

}  // namespace

GnuplotRun StartGnuplot(const std::string& commands) {
  const Handle in = TemporaryFile();
  const Handle out = TemporaryFile();
  const Handle err = TemporaryFile();
  Write(in.get(), commands);
  const Handle process = Start(in.get(), out.get(), err.get());
  if (!process) return {GnuplotRun::End::notFound, ""};
  DWORD status = EXIT_FAILURE;
  WaitForSingleObject(process.get(), INFINITE);
  GetExitCodeProcess(process.get(), &status);
  return {status == 0 ? GnuplotRun::End::finished : GnuplotRun::End::failed, ContentOf(out.get())};
}
