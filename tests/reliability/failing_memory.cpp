#include "failing_memory.h"

#include <atomic>
#include <cstddef>
#include <limits>
#include <new>

// The linker redirects every call of an allocation function in this program's objects to these functions;
// `__real_x` calls the original.
extern "C" {
void* __real_malloc(std::size_t bytes);
void* __real_calloc(std::size_t count, std::size_t bytes);
void* __real_realloc(void* block, std::size_t bytes);
void __real_free(void* block);
}

namespace ravo::test {
namespace {

constexpr std::int64_t kNever = std::numeric_limits<std::int64_t>::max();

std::atomic<std::int64_t> left{kNever};
std::atomic<bool> has_failed{false};
std::atomic<std::int64_t> live{0};

// Returns whether this allocation succeeds.
bool Grant() noexcept {
  if (left == kNever) return true;
  if (left-- > 0) return true;
  has_failed = true;
  return false;
}

void* Taken(void* block) noexcept {
  if (block != nullptr) ++live;
  return block;
}

}  // namespace

FailingMemory::FailingMemory(std::int64_t requests) noexcept {
  has_failed = false;
  left = requests;
}

FailingMemory::~FailingMemory() { left = kNever; }

bool FailingMemory::HasFailed() const noexcept { return has_failed; }

std::int64_t FailingMemory::Left() const noexcept { return left; }

std::int64_t LiveBlocks() noexcept { return live; }

}  // namespace ravo::test

extern "C" {
void* __wrap_malloc(std::size_t bytes) {
  return ravo::test::Grant() ? ravo::test::Taken(__real_malloc(bytes)) : nullptr;
}
void* __wrap_calloc(std::size_t count, std::size_t bytes) {
  return ravo::test::Grant() ? ravo::test::Taken(__real_calloc(count, bytes)) : nullptr;
}
void* __wrap_realloc(void* block, std::size_t bytes) {
  if (!ravo::test::Grant()) return nullptr;
  void* const moved = __real_realloc(block, bytes);
  return block == nullptr ? ravo::test::Taken(moved) : moved;
}
void __wrap_free(void* block) {
  if (block != nullptr) --ravo::test::live;
  __real_free(block);
}
}

// The forms for arrays and without exceptions call these.
void* operator new(std::size_t bytes) {
  if (void* const block = __wrap_malloc(bytes > 0 ? bytes : 1)) return block;
  throw std::bad_alloc();
}
void operator delete(void* block) noexcept { __wrap_free(block); }
void operator delete(void* block, std::size_t) noexcept { __wrap_free(block); }
