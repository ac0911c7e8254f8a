#include "limited_memory.h"

#include <cstdlib>
#include <new>

namespace keltest {
namespace {

struct Memory {
  std::int64_t live = 0;
  std::int64_t untilFailure = INT64_MAX;
  std::size_t largestArray = SIZE_MAX;
};

thread_local Memory memory;

void* AllocateOrNull(std::size_t bytes) {
  if (--memory.untilFailure == 0) return nullptr;
  void* const block = std::malloc(bytes == 0 ? 1 : bytes);
  if (block) ++memory.live;
  return block;
}

void* Allocate(std::size_t bytes) {
  void* const block = AllocateOrNull(bytes);
  if (!block) throw std::bad_alloc();
  return block;
}

void* AllocateArray(std::size_t bytes) {
  if (bytes > memory.largestArray) throw std::bad_alloc();
  return Allocate(bytes);
}

void Release(void* block) {
  if (block) --memory.live;
  std::free(block);
}

}  // namespace

LimitedMemory::LimitedMemory(std::int64_t failing, std::size_t largestArray) {
  memory.untilFailure = failing;
  memory.largestArray = largestArray;
}

LimitedMemory::~LimitedMemory() {
  memory.untilFailure = INT64_MAX;
  memory.largestArray = SIZE_MAX;
}

std::int64_t LiveAllocations() { return memory.live; }

}  // namespace keltest

void* operator new(std::size_t bytes) { return keltest::Allocate(bytes); }
void* operator new[](std::size_t bytes) { return keltest::AllocateArray(bytes); }
void* operator new(std::size_t bytes, const std::nothrow_t&) noexcept { return keltest::AllocateOrNull(bytes); }
void* operator new[](std::size_t bytes, const std::nothrow_t&) noexcept { return keltest::AllocateOrNull(bytes); }
void operator delete(void* block) noexcept { keltest::Release(block); }
void operator delete[](void* block) noexcept { keltest::Release(block); }
void operator delete(void* block, std::size_t) noexcept { keltest::Release(block); }
void operator delete[](void* block, std::size_t) noexcept { keltest::Release(block); }
