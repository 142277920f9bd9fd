#include <ravo/xml/arena.h>

#include <algorithm>
#include <cstring>
#include <new>

namespace ravo::xml {
namespace {

constexpr std::size_t kLargestBlock = std::size_t{1} << 18;

constexpr std::size_t Aligned(std::size_t bytes) {
  return (bytes + alignof(void*) - 1) / alignof(void*) * alignof(void*);
}

}  // namespace

// Blocks grow with the document: a small document needs little memory.
void Arena::AddBlock(std::size_t least) {
  const std::size_t size = std::max(next_size_, Aligned(least));
  next_size_ = std::min(next_size_ * 2, kLargestBlock);
  blocks_.push_back(std::make_unique_for_overwrite<std::byte[]>(size));
  front_ = blocks_.back().get();
  back_ = front_ + size;
}

void* Arena::Allocate(std::size_t bytes) {
  bytes = Aligned(bytes);
  if (Remaining() < bytes) AddBlock(bytes);
  void* const memory = front_;
  front_ += bytes;
  return memory;
}

const char* Arena::Copy(std::string_view bytes) {
  if (Remaining() < bytes.size()) AddBlock(bytes.size());
  back_ -= bytes.size();
  std::memcpy(back_, bytes.data(), bytes.size());
  return reinterpret_cast<const char*>(back_);
}

void* Arena::AllocateCell(std::size_t size) {
  if (free_ == nullptr) return Allocate(size);
  void* const cell = free_;
  free_ = free_->next;
  return cell;
}

void Arena::FreeCell(void* cell) noexcept { free_ = ::new (cell) FreeCellLink{free_}; }

}  // namespace ravo::xml
