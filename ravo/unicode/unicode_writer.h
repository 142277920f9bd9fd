#pragma once

#include <ravo/unicode/unicode_base.h>

#include <cstdint>
#include <span>
#include <vector>

namespace ravo::DIUnicode {

class TDIUnicodeWriter;

/// What plugs an encoding into a writer. All but `WriteChar` may be null.
struct TDIUnicodeWriteMethods {
  void (*Init)(TDIUnicodeWriter& writer) = nullptr;
  /// Encodes a character; false where the encoding lacks it.
  bool (*WriteChar)(TDIUnicodeWriter& writer, char16_t ch) = nullptr;
  /// Writes what the encoder holds back.
  void (*Flush)(TDIUnicodeWriter& writer) = nullptr;
  void (*Finalize)(TDIUnicodeWriter& writer) = nullptr;
};

using PDIUnicodeWriteMethods = const TDIUnicodeWriteMethods*;

/// Encodes UTF-16 characters, one at a time, into bytes of a chosen encoding. One thread uses one object at a
/// time.
class RAVO_API TDIUnicodeWriter : public TDIUnicodeBase {
 public:
  explicit TDIUnicodeWriter(TComponent* AOwner = nullptr);
  ~TDIUnicodeWriter() override;

  void SetWriteMethods(const TDIUnicodeWriteMethods& methods);
  /// Calls the encoder; nothing else.
  bool TryWriteCharW(char16_t ch) { return FWriteMethods.WriteChar(*this, ch); }
  void FlushDataBuffer();
  void WriteByte(std::uint8_t byte);
  [[nodiscard]] std::span<const std::uint8_t> Data() const noexcept { return bytes_; }

  /// The encoder's own state: a number or a pointer. 0 whenever write methods are set.
  [[nodiscard]] std::uintptr_t State() const noexcept { return FState; }
  void SetState(std::uintptr_t state) noexcept { FState = state; }

 private:
  std::vector<std::uint8_t> bytes_;
  TDIUnicodeWriteMethods FWriteMethods;
  std::uintptr_t FState = 0;
};

}  // namespace ravo::DIUnicode
