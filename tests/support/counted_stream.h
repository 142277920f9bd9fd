#pragma once

#include <ravo/runtime/byte_stream.h>

#include <string_view>
#include <utility>

namespace ravo::test {

/// A stream over bytes of its own that counts when it is deleted, for tests of code that deletes streams.
class CountedStream final : public ByteStream {
 public:
  CountedStream(std::string_view bytes, int& freed)
      : inner_(std::as_bytes(std::span(bytes))), freed_(&freed) {}
  ~CountedStream() override { ++*freed_; }

  [[nodiscard]] std::size_t Read(std::span<std::byte> to) override { return inner_.Read(to); }
  [[nodiscard]] std::size_t Write(std::span<const std::byte> from) override { return inner_.Write(from); }
  [[nodiscard]] std::int64_t Position() const override { return inner_.Position(); }
  void SetPosition(std::int64_t position) override { inner_.SetPosition(position); }
  [[nodiscard]] std::int64_t Size() const override { return inner_.Size(); }

 private:
  MemoryStream inner_;
  int* freed_;
};

}  // namespace ravo::test
