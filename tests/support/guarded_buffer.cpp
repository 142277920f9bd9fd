#include "support/guarded_buffer.h"

#include <algorithm>
#include <new>

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/mman.h>
#endif

namespace ravo::test {
namespace {

constexpr std::size_t kPage = 4096;

#ifdef _WIN32
void* Reserve(std::size_t bytes) {
  return VirtualAlloc(nullptr, bytes, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
}
void Forbid(void* page) {
  DWORD before = 0;
  VirtualProtect(page, kPage, PAGE_NOACCESS, &before);
}
void Free(void* pages, std::size_t) { VirtualFree(pages, 0, MEM_RELEASE); }
#else
void* Reserve(std::size_t bytes) {
  void* pages = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  return pages == MAP_FAILED ? nullptr : pages;
}
void Forbid(void* page) { mprotect(page, kPage, PROT_NONE); }
void Free(void* pages, std::size_t bytes) { munmap(pages, bytes); }
#endif

}  // namespace

GuardedBuffer::GuardedBuffer(std::span<const std::byte> bytes)
    : reserved_((bytes.size() + kPage - 1) / kPage * kPage + kPage) {
  pages_ = Reserve(reserved_);
  if (!pages_) throw std::bad_alloc();
  std::byte* guard = static_cast<std::byte*>(pages_) + reserved_ - kPage;
  Forbid(guard);
  bytes_ = {guard - bytes.size(), bytes.size()};
  std::ranges::copy(bytes, bytes_.begin());
}

GuardedBuffer::~GuardedBuffer() { Free(pages_, reserved_); }

}  // namespace ravo::test
