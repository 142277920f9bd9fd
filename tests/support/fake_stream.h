#pragma once

#include <ravo/runtime/byte_stream.h>

#include <algorithm>

namespace ravo::test {

/// A stream over another one that moves at most `most` bytes at a time, as pipes and network files do.
class StingyStream final : public ByteStream {
 public:
  StingyStream(ByteStream& inner, std::size_t most) noexcept : inner_(inner), most_(most) {}

  [[nodiscard]] std::size_t Read(std::span<std::byte> to) override {
    ++calls_;
    return inner_.Read(to.first(std::min(most_, to.size())));
  }
  [[nodiscard]] std::size_t Write(std::span<const std::byte> from) override {
    ++calls_;
    return inner_.Write(from.first(std::min(most_, from.size())));
  }
  [[nodiscard]] std::int64_t Position() const override { return inner_.Position(); }
  void SetPosition(std::int64_t position) override { inner_.SetPosition(position); }
  [[nodiscard]] std::int64_t Size() const override { return inner_.Size(); }

  /// The number of reads and writes.
  [[nodiscard]] std::size_t Calls() const noexcept { return calls_; }

 private:
  ByteStream& inner_;
  std::size_t most_;
  std::size_t calls_ = 0;
};

/// A read-only stream over bytes that are not copied. Counts the bytes read.
class SpanStream final : public ByteStream {
 public:
  explicit SpanStream(std::span<const std::byte> bytes) noexcept : bytes_(bytes) {}

  [[nodiscard]] std::size_t Read(std::span<std::byte> to) override {
    if (position_ >= Size()) return 0;
    const auto rest = bytes_.subspan(static_cast<std::size_t>(position_));
    const std::size_t count = std::min(rest.size(), to.size());
    std::ranges::copy(rest.first(count), to.begin());
    position_ += static_cast<std::int64_t>(count);
    bytes_read_ += count;
    return count;
  }
  [[nodiscard]] std::size_t Write(std::span<const std::byte>) override { return 0; }
  [[nodiscard]] std::int64_t Position() const override { return position_; }
  void SetPosition(std::int64_t position) override { position_ = position; }
  [[nodiscard]] std::int64_t Size() const override { return std::ssize(bytes_); }

  [[nodiscard]] std::size_t BytesRead() const noexcept { return bytes_read_; }

 private:
  std::span<const std::byte> bytes_;
  std::int64_t position_ = 0;
  std::size_t bytes_read_ = 0;
};

/// A stream of any size without content: each byte reads as the low byte of its position, and written bytes
/// are only counted.
class VastStream final : public ByteStream {
 public:
  explicit VastStream(std::int64_t size) noexcept : size_(size) {}

  [[nodiscard]] std::size_t Read(std::span<std::byte> to) override {
    const std::int64_t rest = std::max<std::int64_t>(size_ - position_, 0);
    const auto count = static_cast<std::size_t>(std::min<std::int64_t>(rest, std::ssize(to)));
    for (std::byte& byte : to.first(count)) byte = static_cast<std::byte>(position_++ & 0xFF);
    return count;
  }
  [[nodiscard]] std::size_t Write(std::span<const std::byte> from) override {
    position_ += std::ssize(from);
    size_ = std::max(size_, position_);
    return from.size();
  }
  [[nodiscard]] std::int64_t Position() const override { return position_; }
  void SetPosition(std::int64_t position) override { position_ = position; }
  [[nodiscard]] std::int64_t Size() const override { return size_; }

 private:
  std::int64_t size_;
  std::int64_t position_ = 0;
};

}  // namespace ravo::test
