#ifndef KELPOWER_FUZZ_CALL_INPUT_H
#define KELPOWER_FUZZ_CALL_INPUT_H

/// \file
/// Calls of exports as inputs of the fuzzer.

#include <cstdint>
#include <vector>

#include "reader.h"
#include "target.h"

namespace kelfuzz {

/// Reads which export is called. It is found by a hash of its name, so that an input keeps its meaning when exports are
/// added.
const keltest::Target& ReadTarget(Reader& reader);

/// Reads the arguments of a call: any values, but arrays as long as numGroups says.
keltest::Arguments ReadArguments(const keltest::Target& target, Reader& reader);

/// The input from which the other two read this call.
std::vector<std::uint8_t> WriteCall(const keltest::Target& target, const keltest::Arguments& arguments);

}  // namespace kelfuzz

#endif
