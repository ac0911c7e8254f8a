#pragma once

#include <string>

/// What gnuplot puts to its standard output for these commands. Throws a std::runtime_error when it cannot be started
/// or fails.
std::string RunGnuplot(const std::string& commands);
