#include <ravo/codec/encoding.h>
#include <ravo/unicode/encoding_of.h>
#include <ravo/unicode/encodings.h>

#include <array>

namespace ravo::DIUnicode {
namespace {

#define RAVO_METHODS_Both(name) &Read_##name, &Write_##name
#define RAVO_METHODS_ReadOnly(name) &Read_##name, nullptr
#define RAVO_METHODS_WriteOnly(name) nullptr, &Write_##name
#define RAVO_ENCODING(name, label, code_page, aliases, engine, ways, table, sources, notes) \
  {#name, label, code_page, aliases, #engine, notes, RAVO_METHODS_##ways(name)},
constexpr EncodingRow kRows[] = {
#include <ravo/codec/rows.inc>
};
#undef RAVO_ENCODING

// The rows of ravo/codec have the same order.
const EncodingRow* RowOf(const codec::Encoding* encoding) {
  return encoding == nullptr ? nullptr : &kRows[encoding - codec::Encodings().data()];
}

}  // namespace

std::span<const EncodingRow> EncodingRows() noexcept { return kRows; }

const EncodingRow* FindEncoding(std::string_view name) noexcept { return RowOf(codec::FindEncoding(name)); }

const EncodingRow* FindEncodingByCodePage(std::uint32_t code_page) noexcept {
  return RowOf(codec::FindEncoding(code_page));
}

std::vector<std::uint8_t> EncodedCharacter(const EncodingRow& encoding, char16_t ch) {
  const codec::Encoding* const row =
      encoding.write != nullptr ? unicode::EncodingOf(*encoding.write) : nullptr;
  if (row == nullptr) return {};
  std::array<std::uint8_t, 2 * codec::kMostBytesAtOnce> bytes{};
  codec::State state;
  std::size_t count = codec::Encode(*row, state, {&ch, 1}, bytes).made;
  count += codec::Flush(*row, state, std::span(bytes).subspan(count).first<codec::kMostBytesAtOnce>());
  return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(count)};
}

}  // namespace ravo::DIUnicode
