#pragma once

#include <ravo/runtime/export.h>
#include <ravo/runtime/text.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ravo {

namespace detail {

/// The position of the two digits of each byte, in memory order, in the text without braces.
inline constexpr std::array<std::size_t, 16> kGuidDigitPlaces{6,  4,  2,  0,  11, 9,  16, 14,
                                                              19, 21, 24, 26, 28, 30, 32, 34};

/// Returns the bytes of an identifier in text form, in memory order, or no value if the text is malformed.
template <class Char>
constexpr std::optional<std::array<std::uint8_t, 16>> GuidBytes(std::basic_string_view<Char> text) noexcept {
  // Untested: with one brace missing, the text is refused for its length below.
  if (text.size() == 38 && text.front() == Char{'{'} && text.back() == Char{'}'}) text = text.substr(1, 36);
  if (text.size() != 36) return std::nullopt;
  for (const std::size_t dash : {8U, 13U, 18U, 23U}) {
    if (text[dash] != Char{'-'}) return std::nullopt;
  }
  std::array<std::uint8_t, 16> bytes{};
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const std::size_t place = kGuidDigitPlaces[i];
    const int high = HexDigitValue(static_cast<char16_t>(text[place]));
    const int low = HexDigitValue(static_cast<char16_t>(text[place + 1]));
    if (high < 0 || low < 0) return std::nullopt;
    bytes[i] = static_cast<std::uint8_t>(high * 16 + low);
  }
  return bytes;
}

}  // namespace detail

/// A 128-bit identifier, stored as 16 bytes: the first three groups are little-endian numbers, the last two
/// groups are bytes as written.
struct RAVO_API Guid {
  /// The bytes in memory order.
  std::array<std::uint8_t, 16> bytes{};

  Guid() = default;

  /// Converts the braced text form at compile time; a malformed literal does not compile.
  consteval Guid(const char (&text)[39]) {  // NOLINT(google-explicit-constructor)
    const auto parsed = FromText(std::string_view(text, 38));
    if (!parsed) throw "malformed identifier";  // NOLINT(hicpp-exception-baseclass): never runs
    bytes = parsed->bytes;
  }

  /// Returns the identifier of a text of 8-4-4-4-12 hexadecimal digits of either case, with or without
  /// braces, or no value.
  [[nodiscard]] static constexpr std::optional<Guid> FromText(std::string_view text) noexcept {
    return FromBytes(detail::GuidBytes(text));
  }
  [[nodiscard]] static constexpr std::optional<Guid> FromText(std::u16string_view text) noexcept {
    return FromBytes(detail::GuidBytes(text));
  }

  /// Returns the text form: 8-4-4-4-12 upper-case hexadecimal digits in braces.
  [[nodiscard]] std::u16string ToText() const;

  friend constexpr bool operator==(const Guid&, const Guid&) = default;
  friend constexpr auto operator<=>(const Guid&, const Guid&) = default;  // NOLINT(modernize-use-nullptr)

 private:
  static constexpr std::optional<Guid> FromBytes(
      const std::optional<std::array<std::uint8_t, 16>>& bytes) noexcept {
    if (!bytes) return std::nullopt;
    Guid guid;
    guid.bytes = *bytes;
    return guid;
  }
};

static_assert(sizeof(Guid) == 16);

}  // namespace ravo
