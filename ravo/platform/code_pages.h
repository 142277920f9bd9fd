#pragma once

#include <ravo/platform/chapter.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ravo::platform {

/// 8-bit code pages: the one of the system's data (Windows-1250 on the suite's systems), and others by
/// number.
class CodePageCalls : public Chapter {
 public:
  /// Returns the number of the system's code page: 1250.
  [[nodiscard]] virtual std::uint32_t CodePage() const = 0;
  /// Decodes text of the system's code page. The system chooses what replaces unassigned bytes.
  [[nodiscard]] virtual std::u16string FromCodePage(std::string_view bytes) const = 0;
  /// Encodes text in the system's code page. The system chooses what replaces characters that the code page
  /// lacks, "?" at the latest.
  [[nodiscard]] virtual std::string ToCodePage(std::u16string_view text) const = 0;
  /// Decodes text of a code page by its number; no value if the system does not know it.
  [[nodiscard]] virtual std::optional<std::u16string> DecodeCodePage(std::uint32_t code_page,
                                                                     std::string_view bytes) const = 0;
  /// Encodes text in a code page by its number; no value if the system does not know it.
  [[nodiscard]] virtual std::optional<std::string> EncodeCodePage(std::uint32_t code_page,
                                                                  std::u16string_view text) const = 0;
  /// Returns the 8-bit code page of a locale by the number that Windows gives the locale; no value if that is
  /// unknown.
  [[nodiscard]] virtual std::optional<std::uint32_t> CodePageOfLocale(std::uint32_t locale) const = 0;
};

/// Returns this chapter of the machine in force.
[[nodiscard]] const CodePageCalls& CodePages() noexcept;

}  // namespace ravo::platform
