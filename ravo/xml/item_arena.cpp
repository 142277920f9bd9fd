#include <ravo/xml/item.h>
#include <ravo/xml/item_arena.h>

#include <algorithm>
#include <cstring>

namespace ravo::xml {
namespace {

constexpr std::size_t kLargestBlock = std::size_t{1} << 18;
constexpr std::size_t kAlignment = alignof(ECXMLParser::TXMLItem);

constexpr std::size_t Aligned(std::size_t bytes) {
  return (bytes + kAlignment - 1) / kAlignment * kAlignment;
}

}  // namespace

ItemArena::~ItemArena() = default;

// Blocks grow with the document, so that a small one stays small.
void ItemArena::AddBlock(std::size_t least) {
  const std::size_t size = std::max(next_size_, Aligned(least));
  next_size_ = std::min(next_size_ * 2, kLargestBlock);
  blocks_.push_back({std::make_unique_for_overwrite<std::byte[]>(size)});
  front_ = blocks_.back().bytes.get();
  back_ = front_ + size;
}

void* ItemArena::Room(std::size_t bytes) {
  bytes = Aligned(bytes);
  if (static_cast<std::size_t>(back_ - front_) < bytes) AddBlock(bytes);
  void* const room = front_;
  front_ += bytes;
  return room;
}

void* ItemArena::NewItem() {
  void* memory = free_;
  if (free_ != nullptr) {
    free_ = free_->next;
  } else {
    memory = Room(sizeof(ECXMLParser::TXMLItem));
  }
  Hold();
  return memory;
}

void ItemArena::FreeItem(void* memory) noexcept {
  free_ = new (memory) FreeCell{free_};
  Release();
}

const char* ItemArena::Keep(std::string_view bytes) {
  if (static_cast<std::size_t>(back_ - front_) < bytes.size()) AddBlock(bytes.size());
  back_ -= bytes.size();
  std::memcpy(back_, bytes.data(), bytes.size());
  return reinterpret_cast<const char*>(back_);
}

}  // namespace ravo::xml
