#pragma once

#include <optional>
#include <string>
#include <string_view>

/// UTF-16 text of the library and of system calls: the same 16-bit units in different types.
namespace ravo::platform {

/// Returns a zero-terminated copy for a system call.
[[nodiscard]] inline std::wstring ToWide(std::u16string_view text) { return {text.begin(), text.end()}; }

/// Returns the same for a file's name; no value for a name with a zero in it, which the system would cut
/// short.
[[nodiscard]] inline std::optional<std::wstring> SystemName(std::u16string_view name) {
  return name.find(u'\0') == name.npos ? std::optional(ToWide(name)) : std::nullopt;
}

[[nodiscard]] inline std::u16string FromWide(std::wstring_view text) { return {text.begin(), text.end()}; }

/// Returns `text` up to its terminating zero, or the whole text if it has none.
template <typename Char>
[[nodiscard]] constexpr std::basic_string_view<Char> UpToZero(std::basic_string_view<Char> text) noexcept {
  return text.substr(0, text.find(Char{0}));
}

}  // namespace ravo::platform
