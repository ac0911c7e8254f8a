#ifndef KELPOWER_TESTS_ENGINE_LIMITED_MEMORY_H
#define KELPOWER_TESTS_ENGINE_LIMITED_MEMORY_H

/// \file
/// The operators new and delete of a program that is linked with this: they can be made to fail, and they count.

#include <cstddef>
#include <cstdint>

namespace keltest {

/// While it lives, allocations of this thread beyond the limits end in std::bad_alloc. One at a time.
class LimitedMemory {
public:
  /// The allocation with this number fails, the first being 1, and so does any array (`new[]`) of more bytes than this.
  LimitedMemory(std::int64_t failing, std::size_t largestArray);
  ~LimitedMemory();
  LimitedMemory(const LimitedMemory&) = delete;
  LimitedMemory& operator=(const LimitedMemory&) = delete;
};

/// How many allocations of this thread have not been released.
std::int64_t LiveAllocations();

}  // namespace keltest

#endif
