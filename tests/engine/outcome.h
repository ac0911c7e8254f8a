#ifndef KELPOWER_TESTS_ENGINE_OUTCOME_H
#define KELPOWER_TESTS_ENGINE_OUTCOME_H

#include <cstdint>
#include <string>
#include <vector>

#include "target.h"

namespace keltest {

/// What one call gave, and what is wrong with it whatever its arguments were.
struct Outcome {
  std::vector<std::uint64_t> bits;    ///< of the result, of all arrays after the call, and the questions asked
  bool ranOutOfMemory = false;        ///< the call ended in std::bad_alloc
  std::vector<std::string> problems;  ///< promises of the interface that are broken
};

/// How a call is made: `Call`, or something around it.
using CallThrough = Result (*)(const Function& function, Arguments& arguments);

/// Calls the function with a copy of the arguments and releases its record. The promises that hold for all arguments:
/// - a record is empty or has all its arrays, it is empty where a step is not above 0, and is released as documented;
/// - arrays are changed only where that is documented;
/// - a power for finite arguments and a level in (0, 1) is a probability or one of the answers to invalid input, and a
///   NaN argument gives no power, but to an exact test;
/// - the values of a chart are in single precision unless it is one of those that are not;
/// - a call that runs out of memory leaves a vector as it was or with missing values;
/// - a power that is told to stop is missing, and a search soon asks no more.
Outcome Observe(const Target& target, const Arguments& arguments, CallThrough call = Call);

}  // namespace keltest

#endif
