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

  /// Reads up to `to.size()` bytes at the position and advances it; returns the number of bytes read, 0 at
  /// the end. Throws `StreamError` if reading fails.
  [[nodiscard]] virtual std::size_t Read(std::span<std::byte> to) = 0;

  /// Writes up to `from.size()` bytes at the position and advances it; returns the number of bytes written.
  [[nodiscard]] virtual std::size_t Write(std::span<const std::byte> from) = 0;

  /// Returns the position in bytes: the offset of the next byte to read or write.
  [[nodiscard]] virtual std::int64_t Position() const = 0;

  /// Sets the position in bytes, also past the end. Throws `RangeError` if it is negative.
  virtual void SetPosition(std::int64_t position) = 0;

  /// Returns the size in bytes.
  [[nodiscard]] virtual std::int64_t Size() const = 0;

  /// Fills `to`, with as many reads as needed. Throws `StreamError` if the stream ends early.
  void ReadChecked(std::span<std::byte> to);

  /// Writes all of `from`, with as many writes as needed. Throws `StreamError` if a write makes no progress.
  void WriteChecked(std::span<const std::byte> from);
};

/// A stream in memory that grows when it is written to. Writing past the end fills the gap with zeros.
class RAVO_API MemoryStream final : public ByteStream {
 public:
  /// Constructs an empty stream.
  MemoryStream() = default;
  /// Constructs a stream that owns `bytes`; the position is 0.
  explicit MemoryStream(std::vector<std::byte> bytes) noexcept : bytes_(std::move(bytes)) {}
  /// Constructs a stream with a copy of `bytes`; the position is 0.
  explicit MemoryStream(std::span<const std::byte> bytes) : bytes_(bytes.begin(), bytes.end()) {}
  ~MemoryStream() override;

  /// Reads up to `to.size()` bytes; returns 0 at and past the end.
  [[nodiscard]] std::size_t Read(std::span<std::byte> to) override;
  /// Writes all bytes of `from`. Throws `RangeError` if the size would not fit 63 bits, and `std::bad_alloc`
  /// if memory runs out.
  [[nodiscard]] std::size_t Write(std::span<const std::byte> from) override;
  /// Returns the position in bytes.
  [[nodiscard]] std::int64_t Position() const override { return position_; }
  /// Sets the position in bytes, also past the end. Throws `RangeError` if it is negative.
  void SetPosition(std::int64_t position) override;
  /// Returns the size in bytes.
  [[nodiscard]] std::int64_t Size() const override { return static_cast<std::int64_t>(bytes_.size()); }

  /// Returns all bytes. The view is valid until the next write.
  [[nodiscard]] std::span<const std::byte> Bytes() const noexcept { return bytes_; }

 private:
  std::vector<std::byte> bytes_;
  std::int64_t position_ = 0;
};

}  // namespace ravo
