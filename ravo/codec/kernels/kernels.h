#pragma once

#include <ravo/codec/kernels/kernel_set.h>

/// The functions of the sets; kernel_set.h describes each kind.
namespace ravo::codec {

/// On every processor.
[[nodiscard]] Run DecodeUtf8Ascii(ByteSpan bytes, TextRoom text) noexcept;
[[nodiscard]] Run EncodeUtf8Ascii(TextSpan text, ByteRoom bytes) noexcept;
[[nodiscard]] std::size_t Utf8Length(TextSpan text) noexcept;
[[nodiscard]] Run DecodeSingleByteAscii(const ByteTable& table, ByteSpan bytes, TextRoom text) noexcept;
[[nodiscard]] Run EncodeSingleByteBlocks(const ReverseTable& table, bool ascii, TextSpan text,
                                         ByteRoom bytes) noexcept;
[[nodiscard]] std::size_t FindSpecialBlocks(TextSpan text) noexcept;
[[nodiscard]] Run DecodeUnitBlocks(bool swap, bool plain_only, ByteSpan bytes, TextRoom text) noexcept;
[[nodiscard]] Run EncodeUnitBlocks(bool swap, bool plain_only, TextSpan text, ByteRoom bytes) noexcept;

[[nodiscard]] bool HasSsse3() noexcept;
[[nodiscard]] Run DecodeUtf8Ssse3(ByteSpan bytes, TextRoom text) noexcept;
[[nodiscard]] Run EncodeUtf8Ssse3(TextSpan text, ByteRoom bytes) noexcept;

[[nodiscard]] bool HasAvx2() noexcept;
[[nodiscard]] Run DecodeUtf8Avx2(ByteSpan bytes, TextRoom text) noexcept;
[[nodiscard]] Run EncodeUtf8Avx2(TextSpan text, ByteRoom bytes) noexcept;
[[nodiscard]] std::size_t Utf8LengthAvx2(TextSpan text) noexcept;
[[nodiscard]] std::size_t FindSpecialAvx2(TextSpan text) noexcept;
[[nodiscard]] std::size_t SkipBytesAvx2(const char* text, const char* last_text, std::size_t places,
                                        const char (&ends)[2]) noexcept;
[[nodiscard]] std::size_t SkipUnitsAvx2(const char16_t* text, const char16_t* last_text, std::size_t places,
                                        const char16_t (&ends)[2]) noexcept;

/// Returns whether the processor has AVX-512 with the extensions that come with VBMI2.
[[nodiscard]] bool HasAvx512() noexcept;
[[nodiscard]] Run DecodeUtf8Avx512(ByteSpan bytes, TextRoom text) noexcept;
[[nodiscard]] RunUntil DecodeUtf8UntilAvx512(ByteSpan bytes, TextRoom text, EndBytes ends) noexcept;
[[nodiscard]] Run EncodeUtf8Avx512(TextSpan text, ByteRoom bytes) noexcept;
[[nodiscard]] std::size_t Utf8LengthAvx512(TextSpan text) noexcept;
[[nodiscard]] Run DecodeSingleByteAvx512(const ByteTable& table, ByteSpan bytes, TextRoom text) noexcept;
[[nodiscard]] RunUntil DecodeSingleByteUntilAvx512(ByteSpan bytes, TextRoom text, EndBytes ends,
                                                   const ByteTable& table) noexcept;
[[nodiscard]] Run EncodeSingleByteAvx512(const ReverseTable& table, bool ascii, TextSpan text,
                                         ByteRoom bytes) noexcept;
[[nodiscard]] std::size_t FindSpecialAvx512(TextSpan text) noexcept;

}  // namespace ravo::codec
