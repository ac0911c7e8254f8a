#pragma once

#include <stdexcept>

namespace planner {

/// The inputs are wrong or do not go together; the text is one sentence that names the option, its value and what is
/// allowed.
struct InputError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// The inputs are allowed, but the question has no answer; the text says why.
struct NoSolution : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// The computation was stopped at the caller's request; there is no answer.
struct Stopped : std::runtime_error {
  using std::runtime_error::runtime_error;
};

}  // namespace planner
