#pragma once

#include <ravo/unicode/unicode_base.h>

#include <cstddef>
#include <cstdint>
#include <span>

namespace ravo::DIUnicode {

class TDIUnicodeReader;

/// What plugs an encoding into a reader. `Init` and `Finalize` may be null.
struct TDIUnicodeReadMethods {
  void (*Init)(TDIUnicodeReader& reader) = nullptr;
  /// Decodes the next character from the reader's bytes; false at the end of all data.
  bool (*ReadChar)(TDIUnicodeReader& reader, char16_t& ch) = nullptr;
  void (*Finalize)(TDIUnicodeReader& reader) = nullptr;
};

using PDIUnicodeReadMethods = const TDIUnicodeReadMethods*;

/// Turns bytes of any supported encoding into UTF-16 characters, one at a time. One thread uses one object at
/// a time.
class RAVO_API TDIUnicodeReader : public TDIUnicodeBase {
 public:
  explicit TDIUnicodeReader(TComponent* AOwner = nullptr);
  ~TDIUnicodeReader() override;

  void SetSourceBuffer(std::span<const std::uint8_t> buffer);
  void SetReadMethods(const TDIUnicodeReadMethods& methods);
  bool ReadChar();
  [[nodiscard]] bool CharOK() const noexcept { return FCharOK; }
  [[nodiscard]] char16_t Char() const noexcept { return FChar; }

  /// The decoder's own state: a number or a pointer. 0 whenever read methods are set.
  [[nodiscard]] std::uintptr_t State() const noexcept { return FState; }
  void SetState(std::uintptr_t state) noexcept { FState = state; }

  // The bytes, for decoders.
  /// The next byte without stepping over it; false at the end of all data. May refill the source buffer.
  [[nodiscard]] bool PeekByte(std::uint8_t& byte) {
    if (FSourceBufferPosition >= FSourceBufferSize && FillSourceBuffer(false) == 0) return false;
    byte = FSourceBuffer[FSourceBufferPosition];
    return true;
  }
  /// Steps over the byte that `PeekByte` gave.
  void SkipByte() noexcept { ++FSourceBufferPosition; }
  /// The next byte, stepped over; false at the end of all data.
  [[nodiscard]] bool NextByte(std::uint8_t& byte) {
    if (!PeekByte(byte)) return false;
    SkipByte();
    return true;
  }
  std::uint32_t FillSourceBuffer(bool move_end_to_front);

 private:
  bool FCharOK = false;
  char16_t FChar = 0;
  const std::uint8_t* FSourceBuffer = nullptr;
  std::uint32_t FSourceBufferSize = 0;
  std::uint32_t FSourceBufferPosition = 0;
  TDIUnicodeReadMethods FReadMethods;
  std::uintptr_t FState = 0;
};

}  // namespace ravo::DIUnicode
