#include <ravo/codec/texts.h>
#include <ravo/platform/posix/posix_machine.h>
#include <ravo/runtime/text.h>

#include <algorithm>

#include <locale.h>  // NOLINT(modernize-deprecated-headers): newlocale is not in <clocale>
#include <wctype.h>  // NOLINT(modernize-deprecated-headers): towlower_l is not in <cwctype>

namespace ravo::platform::posix {
namespace {

constexpr std::uint32_t kWindows1250 = 1250;
constexpr std::uint32_t kUtf8 = 65001;
constexpr char16_t kAscii = 0x80;

}  // namespace

std::uint32_t PosixCodePages::CodePage() const { return kWindows1250; }

std::u16string PosixCodePages::FromCodePage(std::string_view bytes) const {
  return codec::DecodedWindows1250OfSystem(bytes);
}

std::string PosixCodePages::ToCodePage(std::u16string_view text) const {
  return codec::EncodedWindows1250OfSystem(text);
}

// Case belongs to characters here, not to languages.
bool PosixLocale::SameText(std::u16string_view left, std::u16string_view right) const {
  static const locale_t characters = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
  const auto folded = [](char16_t unit) {
    // Untested: the C library always has the locale C.UTF-8.
    if (unit < kAscii || characters == nullptr) return AsciiLower(unit);
    return static_cast<char16_t>(towlower_l(unit, characters));
  };
  return std::ranges::equal(left, right, {}, folded, folded);
}

// Of the locales, the C library knows no code pages, and no numbers either.
std::optional<std::uint32_t> PosixCodePages::CodePageOfLocale(std::uint32_t) const { return {}; }

std::optional<std::u16string> PosixCodePages::DecodeCodePage(std::uint32_t code_page,
                                                             std::string_view bytes) const {
  if (code_page == kUtf8) return FromUtf8(bytes);
  return code_page == kWindows1250 ? std::optional(FromCodePage(bytes)) : std::nullopt;
}

std::optional<std::string> PosixCodePages::EncodeCodePage(std::uint32_t code_page,
                                                          std::u16string_view text) const {
  if (code_page == kUtf8) return ToUtf8(text);
  return code_page == kWindows1250 ? std::optional(ToCodePage(text)) : std::nullopt;
}

}  // namespace ravo::platform::posix
