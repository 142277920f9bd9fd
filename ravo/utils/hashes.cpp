#include <ravo/unicode/characters/mapping_tables.h>
#include <ravo/utils/ansi_upper.h>
#include <ravo/utils/byte_count.h>
#include <ravo/utils/hashes.h>
#include <ravo/utils/lookup2.h>

namespace ravo::DIUtils {

std::uint32_t HashBuf(const void* bytes, std::size_t count, std::uint32_t initial) noexcept {
  return utils::Lookup2OfBytes(static_cast<const std::uint8_t*>(bytes), count, initial, utils::AsItIs);
}

std::uint32_t HashBufIA(const void* bytes, std::size_t count, std::uint32_t initial) noexcept {
  return utils::Lookup2OfBytes(static_cast<const std::uint8_t*>(bytes), count, initial,
                               [](std::uint8_t byte) { return ANSI_UPPER_CHAR_TABLE[byte]; });
}

std::uint32_t HashBufIW(const char16_t* units, std::size_t count, std::uint32_t initial) noexcept {
  return utils::Lookup2OfUnits(units, count, initial,
                               [](char16_t unit) { return DIUnicode::FoldedUnit(unit); });
}

std::uint32_t HashStrA(std::string_view text, std::uint32_t initial) noexcept {
  return HashBuf(text.data(), text.size(), initial);
}

std::uint32_t HashStrW(std::u16string_view text, std::uint32_t initial) {
  return HashBuf(text.data(), utils::ByteCountOfUnits(text.size()), initial);
}

std::uint32_t HashStrIA(std::string_view text, std::uint32_t initial) noexcept {
  return HashBufIA(text.data(), text.size(), initial);
}

std::uint32_t HashStrIW(std::u16string_view text, std::uint32_t initial) noexcept {
  return HashBufIW(text.data(), text.size(), initial);
}

}  // namespace ravo::DIUtils
