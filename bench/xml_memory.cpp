#include "xml_memory.h"

#include <algorithm>
#include <cstdlib>
#include <new>

#include <malloc.h>

namespace {

std::size_t held = 0;
std::size_t peak = 0;
bool counting = false;

}  // namespace

namespace ravo::bench {

void StartCountingMemory() noexcept {
  held = peak = 0;
  counting = true;
}

std::size_t StopCountingMemory() noexcept {
  counting = false;
  return peak;
}

}  // namespace ravo::bench

void* operator new(std::size_t size) {
  void* memory = std::malloc(size > 0 ? size : 1);
  if (memory == nullptr) throw std::bad_alloc();
  if (counting) {
    held += malloc_usable_size(memory);
    peak = std::max(peak, held);
  }
  return memory;
}

void operator delete(void* memory) noexcept {
  if (counting && memory != nullptr) held -= std::min(held, malloc_usable_size(memory));
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }
