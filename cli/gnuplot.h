#ifndef KELPOWER_CLI_GNUPLOT_H
#define KELPOWER_CLI_GNUPLOT_H

#include <string>

/// What gnuplot puts to its standard output for these commands. Throws a std::runtime_error when it cannot be started
/// or fails.
std::string RunGnuplot(const std::string& commands);

/// How a run of gnuplot ended.
struct GnuplotRun {
  enum class End { finished, failed, notFound } end;
  std::string output;
};

/// Runs gnuplot over the commands. Each system has a file of its own for it. Throws a std::runtime_error when there is
/// no room for its files.
GnuplotRun StartGnuplot(const std::string& commands);

#endif
