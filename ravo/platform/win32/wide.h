#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The library's UTF-16 texts and those of the system calls: the same 16-bit units in different types.
namespace ravo::platform {

/// A terminated copy for a system call.
[[nodiscard]] inline std::wstring ToWide(std::u16string_view text) { return {text.begin(), text.end()}; }

/// The same of a file's name; no value for a name with a zero in it, which the system would cut short.
[[nodiscard]] inline std::optional<std::wstring> SystemName(std::u16string_view name) {
  return name.find(u'\0') == name.npos ? std::optional(ToWide(name)) : std::nullopt;
}

[[nodiscard]] inline std::u16string FromWide(std::wstring_view text) { return {text.begin(), text.end()}; }

/// `text` up to its terminating zero, the whole where it has none.
template <typename Char>
[[nodiscard]] constexpr std::basic_string_view<Char> UpToZero(std::basic_string_view<Char> text) noexcept {
  return text.substr(0, text.find(Char{0}));
}

}  // namespace ravo::platform
