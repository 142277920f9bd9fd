#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace ravo::xml {

/// Hands out memory in blocks that grow, and frees all of it at once.
class Arena {
 public:
  Arena() = default;
  Arena(const Arena&) = delete;
  Arena& operator=(const Arena&) = delete;

  /// Memory aligned for pointers, valid as long as the arena. Throws `std::bad_alloc`.
  [[nodiscard]] void* Allocate(std::size_t bytes);
  /// A copy of `bytes`, valid as long as the arena. Throws `std::bad_alloc`.
  [[nodiscard]] const char* Copy(std::string_view bytes);

  /// Like `Allocate`, but reuses what `FreeCell` took back. All cells of an arena have the same size, which
  /// is at least that of a pointer.
  [[nodiscard]] void* AllocateCell(std::size_t size);
  void FreeCell(void* cell) noexcept;

 private:
  struct FreeCellLink {
    FreeCellLink* next;
  };

  void AddBlock(std::size_t least);
  [[nodiscard]] std::size_t Remaining() const noexcept { return static_cast<std::size_t>(back_ - front_); }

  std::vector<std::unique_ptr<std::byte[]>> blocks_;
  // Aligned memory grows from the front of the newest block, copies of bytes from its back.
  std::byte* front_ = nullptr;
  std::byte* back_ = nullptr;
  std::size_t next_size_ = 1024;
  FreeCellLink* free_ = nullptr;
};

}  // namespace ravo::xml
