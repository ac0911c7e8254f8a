#ifndef KELPOWER_CLI_USAGE_ERROR_H
#define KELPOWER_CLI_USAGE_ERROR_H

#include <stdexcept>

/// The command line itself is wrong, before the planner has looked at its values. The text is one sentence.
struct UsageError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

#endif
