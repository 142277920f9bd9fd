#pragma once

#include <cstddef>
#include <string>

/// Strings whose memory is written once: without the zeros that `resize` writes first.
namespace ravo {

/// Writes up to `size` characters to `to` and returns how many. Must not throw.
template <class Char>
using WriteChars = std::size_t (*)(void* context, Char* to, std::size_t size);

/// Makes `text` what `write` writes into room for `size` characters.
void OverwriteBy(std::string& text, std::size_t size, WriteChars<char> write, void* context);
void OverwriteBy(std::u16string& text, std::size_t size, WriteChars<char16_t> write, void* context);

/// Returns the text that `write(to, size)` writes into room for `size` characters; it returns how many those
/// are and must not throw.
template <class Char, class Write>
[[nodiscard]] std::basic_string<Char> Written(std::size_t size, Write write) {
  std::basic_string<Char> text;
  const auto call = [](void* context, Char* to, std::size_t room) {
    return (*static_cast<Write*>(context))(to, room);
  };
  OverwriteBy(text, size, call, &write);
  return text;
}

}  // namespace ravo
