#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace ravo {

/// A seekable stream of bytes. Positions, sizes and counts are in bytes.
class RAVO_API ByteStream {
 public:
  ByteStream() = default;
  ByteStream(const ByteStream&) = delete;
  ByteStream& operator=(const ByteStream&) = delete;
  virtual ~ByteStream();

  /// Reads up to `to.size()` bytes from the position on and moves it; answers how many were read, 0 at the
  /// end. Throws `StreamError` if the bytes cannot be read.
  [[nodiscard]] virtual std::size_t Read(std::span<std::byte> to) = 0;

  /// Writes up to `from.size()` bytes at the position and moves it; answers how many were written.
  [[nodiscard]] virtual std::size_t Write(std::span<const std::byte> from) = 0;

  /// The byte that is read or written next, from 0.
  [[nodiscard]] virtual std::int64_t Position() const = 0;

  /// A position beyond the end is allowed. Raises `RangeError` for a negative one.
  virtual void SetPosition(std::int64_t position) = 0;

  /// In bytes.
  [[nodiscard]] virtual std::int64_t Size() const = 0;

  /// Reads all of `to`, in as many reads as it takes, or raises `StreamError`.
  void ReadChecked(std::span<std::byte> to);

  /// Writes all of `from`, in as many writes as it takes, or raises `StreamError`.
  void WriteChecked(std::span<const std::byte> from);
};

/// A stream over bytes in memory that grows as it is written. Writing beyond the end fills the gap with
/// zeros.
class RAVO_API MemoryStream final : public ByteStream {
 public:
  /// An empty stream.
  MemoryStream() = default;
  /// Takes over the bytes; the position is 0.
  explicit MemoryStream(std::vector<std::byte> bytes) noexcept : bytes_(std::move(bytes)) {}
  /// Copies the bytes; the position is 0.
  explicit MemoryStream(std::span<const std::byte> bytes) : bytes_(bytes.begin(), bytes.end()) {}
  ~MemoryStream() override;

  /// Up to `to.size()` bytes; 0 at the end and beyond.
  [[nodiscard]] std::size_t Read(std::span<std::byte> to) override;
  /// All bytes of `from`. `RangeError` where the size leaves 63 bits, `std::bad_alloc` without memory.
  [[nodiscard]] std::size_t Write(std::span<const std::byte> from) override;
  /// The byte that is read or written next, from 0.
  [[nodiscard]] std::int64_t Position() const override { return position_; }
  /// A position beyond the end is allowed. `RangeError` for a negative one.
  void SetPosition(std::int64_t position) override;
  /// In bytes.
  [[nodiscard]] std::int64_t Size() const override { return static_cast<std::int64_t>(bytes_.size()); }

  /// All bytes; the view lasts until the next write.
  [[nodiscard]] std::span<const std::byte> Bytes() const noexcept { return bytes_; }

 private:
  std::vector<std::byte> bytes_;
  std::int64_t position_ = 0;
};

}  // namespace ravo
