#include "support/allocation_count.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace ravo::test {
namespace {

std::atomic<std::size_t> count{0};

}  // namespace

std::size_t AllocationCount() noexcept { return count.load(); }

#ifndef RAVO_SANITIZED
namespace {

void* Allocate(std::size_t bytes) {
  ++count;
  if (void* memory = std::malloc(bytes > 0 ? bytes : 1)) return memory;
  throw std::bad_alloc();
}

}  // namespace
#endif

}  // namespace ravo::test

#ifndef RAVO_SANITIZED
// The forms for arrays and without exceptions call these. The tests need no over-aligned allocation.
void* operator new(std::size_t bytes) { return ravo::test::Allocate(bytes); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
#endif
