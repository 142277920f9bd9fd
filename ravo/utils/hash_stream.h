#pragma once

#include <ravo/runtime/export.h>
#include <ravo/utils/lookup2.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace ravo {

/// Computes `HashBuf` or `HashBufIA` of bytes that come in blocks: the result depends only on the bytes.
class RAVO_API HashStream {
 public:
  /// The bytes to hash: as given, or in upper case by `ANSI_UPPER_CHAR_TABLE`.
  enum class Letters : std::uint8_t { AsTheyAre, InUpperCase };

  /// `initial` selects one of many independent hash functions.
  explicit HashStream(std::uint32_t initial = 0, Letters letters = Letters::AsTheyAre) noexcept
      : state_{.c = initial}, letters_(letters) {}

  /// Adds bytes.
  void Update(std::span<const std::byte> bytes) noexcept;

  /// Returns the hash of all bytes so far. More may follow.
  [[nodiscard]] std::uint32_t Value() const noexcept;

 private:
  utils::Lookup2State state_;
  Letters letters_;
  std::array<std::uint8_t, utils::kLookup2Piece> waiting_{};
  std::size_t waiting_count_ = 0;
  std::uint32_t count_ = 0;
};

}  // namespace ravo
