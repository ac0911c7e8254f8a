#ifndef KELPOWER_TESTS_ENGINE_TARGET_H
#define KELPOWER_TESTS_ENGINE_TARGET_H

/// \file
/// Exports with the names of their arguments, for tests and fuzz targets that visit all of them.

#include <cstdint>
#include <string>
#include <vector>

#include "binding.h"
#include "vector_case.h"

namespace keltest {

using Arguments = std::vector<Argument>;

/// An export with the names of its arguments.
struct Target {
  const Function* function;
  std::vector<std::string> names;

  bool Has(const std::string& name) const;
  std::int32_t Integer(const Arguments& arguments, const std::string& name) const;
};

/// All exports but those that release a record, which take no values, in the order of the list of exported names.
const std::vector<Target>& Targets();

/// All reference cases of all families.
const std::vector<VectorCase>& AllCases();

/// The first typical case, and the first typical one with an exact computation; without a typical case the first of
/// all.
std::vector<Arguments> TypicalCalls(const Target& target);

/// Whether the call visits every outcome that samples of its sizes can have.
bool EnumeratesSamples(const Target& target, const Arguments& arguments);

/// Whether the function searches for a size.
bool IsSearch(const Target& target);

/// Whether an argument of this name is an end of an axis of sample sizes.
bool IsSizeAxisEnd(const std::string& name);

/// Whether an argument of this name is a sample size, or a count that is part of one.
bool IsSampleSize(const std::string& name);

/// The call, with the names of its arguments.
std::string Describe(const Target& target, const Arguments& arguments);

}  // namespace keltest

#endif
