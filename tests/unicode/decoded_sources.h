#pragma once

#include "support/fake_stream.h"
#include "support/guarded_buffer.h"
#include <ravo/DIUnicode.h>

#include <memory>
#include <string>
#include <string_view>

namespace ravo::test {

/// A source of bytes for a reader, in one of the ways that a reader supports.
class SourceUnderTest {
 public:
  enum class Way { Buffer, Stream, StingyStream, SingleBytes, TwoPieces };

  /// `cut` is the start of the second of two pieces; the first piece is a source of its own on top of the
  /// other.
  SourceUnderTest(DIUnicode::TDIUnicodeReader& reader, std::string_view bytes, Way way, std::size_t cut = 0)
      : guarded_(std::as_bytes(std::span(bytes))), stream_(guarded_.Bytes()) {
    switch (way) {
      case Way::Buffer:
        reader.SetSourceBuffer(guarded_.Bytes().data(), static_cast<std::uint32_t>(bytes.size()));
        break;
      case Way::Stream:
        reader.SetSourceStream(&stream_);
        break;
      case Way::StingyStream:
        pieces_ = std::make_unique<StingyStream>(stream_, 7);
        reader.SetSourceStream(pieces_.get());
        break;
      case Way::SingleBytes:
        pieces_ = std::make_unique<StingyStream>(stream_, 1);
        reader.SetSourceStream(pieces_.get());
        break;
      case Way::TwoPieces:
        pieces_ = std::make_unique<CutStream>(stream_, cut);
        reader.SetSourceStream(pieces_.get());
        break;
    }
  }

 private:
  // A stream whose first read ends at the cut.
  class CutStream final : public ByteStream {
   public:
    CutStream(ByteStream& inner, std::size_t cut) : inner_(inner), cut_(static_cast<std::int64_t>(cut)) {}

    [[nodiscard]] std::size_t Read(std::span<std::byte> to) override {
      const std::int64_t left = cut_ - inner_.Position();
      const auto most = left > 0 ? static_cast<std::size_t>(left) : to.size();
      return inner_.Read(to.first(std::min(to.size(), most)));
    }
    [[nodiscard]] std::size_t Write(std::span<const std::byte>) override { return 0; }
    [[nodiscard]] std::int64_t Position() const override { return inner_.Position(); }
    void SetPosition(std::int64_t position) override { inner_.SetPosition(position); }
    [[nodiscard]] std::int64_t Size() const override { return inner_.Size(); }

   private:
    ByteStream& inner_;
    std::int64_t cut_;
  };

  GuardedBuffer guarded_;
  SpanStream stream_;
  std::unique_ptr<ByteStream> pieces_;
};

}  // namespace ravo::test
