#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <stdexcept>

#include "gnuplot.h"

namespace {

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

File TemporaryFile() {
  File file(std::tmpfile(), std::fclose);
  if (!file) throw std::runtime_error("The chart cannot be drawn: no temporary file can be made.");
  return file;
}

std::string ContentOf(std::FILE* file) {
  std::string content;
  char block[65536];
  std::rewind(file);
  while (const std::size_t count = std::fread(block, 1, sizeof block, file)) content.append(block, count);
  return content;
}

constexpr int notFound = 127;

/// Runs gnuplot over the files and gives its exit status.
int Run(std::FILE* in, std::FILE* out, std::FILE* err) {
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("The chart cannot be drawn: gnuplot cannot be started.");
  if (child == 0) {
    dup2(fileno(in), STDIN_FILENO);
    dup2(fileno(out), STDOUT_FILENO);
    dup2(fileno(err), STDERR_FILENO);
    execlp("gnuplot", "gnuplot", static_cast<char*>(nullptr));
    _exit(notFound);
  }
  int state = 0;
  if (waitpid(child, &state, 0) != child || !WIFEXITED(state)) return EXIT_FAILURE;
  return WEXITSTATUS(state);
}

}  // namespace

GnuplotRun StartGnuplot(const std::string& commands) {
  // Files rather than pipes: neither side can wait for the other.
  const File in = TemporaryFile();
  const File out = TemporaryFile();
  const File err = TemporaryFile();
  const bool written =
      std::fwrite(commands.data(), 1, commands.size(), in.get()) == commands.size() && std::fflush(in.get()) == 0;
  if (!written) throw std::runtime_error("The chart cannot be drawn: the temporary file is full.");
  std::rewind(in.get());
  const int status = Run(in.get(), out.get(), err.get());
  if (status == notFound) return {GnuplotRun::End::notFound, ""};
  return {status == 0 ? GnuplotRun::End::finished : GnuplotRun::End::failed, ContentOf(out.get())};
}
