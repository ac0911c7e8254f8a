#include "gnuplot.h"

#include <stdexcept>

std::string RunGnuplot(const std::string& commands) {
  const GnuplotRun run = StartGnuplot(commands);
  if (run.end == GnuplotRun::End::notFound) {
    throw std::runtime_error("The chart cannot be drawn: gnuplot is not installed; .csv and .json need none.");
  }
  if (run.end == GnuplotRun::End::failed || run.output.empty()) {
    throw std::runtime_error("The chart cannot be drawn: gnuplot failed.");
  }
  return run.output;
}
