#pragma once

#include <ravo/runtime/error.h>

#include <cstdint>
#include <string_view>

namespace ravo::xml {

class Arena;

/// Bytes that an item keeps: a copy in an arena, or on the heap as the item's own.
class KeptBytes {
 public:
  KeptBytes() noexcept : size_(0), owned_(0) {}
  KeptBytes(const KeptBytes&) = delete;
  KeptBytes& operator=(const KeptBytes&) = delete;
  ~KeptBytes() { Clear(); }

  [[nodiscard]] std::string_view View() const noexcept { return {data_, size_}; }
  /// Whether the bytes are on the heap and freed with this object.
  [[nodiscard]] bool OwnsMemory() const noexcept { return owned_ != 0; }

  /// Replaces the bytes by a copy of `bytes`, which may be a part of them.
  ///
  /// The copy is made in `arena`, or on the heap if that is null. Throws `RangeError` for more than
  /// 2,147,483,647 bytes and `std::bad_alloc`; the bytes stay as they were then.
  void Assign(std::string_view bytes, Arena* arena);
  /// Keeps the first `size` bytes.
  void Truncate(std::uint32_t size) noexcept { size_ = size & kLargest; }
  void Clear() noexcept;

 private:
  static constexpr std::uint32_t kLargest = INT32_MAX;

  const char* data_ = nullptr;
  std::uint32_t size_ : 31;
  std::uint32_t owned_ : 1;
};

}  // namespace ravo::xml
