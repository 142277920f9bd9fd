#include <ravo/common/diacritics.h>

#include <algorithm>
#include <array>
#include <cstddef>

namespace ravo::RavoInterfaceCommon {
namespace {

struct Letter {
  unsigned char byte;
  char base;
};

// Kept: the table lacks Ď ď Ó ó Ů; they stay as they are. Test: RemoveDiacritics.LettersThatTheTableLacksStay
constexpr Letter kLetters[] = {
    {0x8A, 'S'},  // Š
    {0x8D, 'T'},  // Ť
    {0x8E, 'Z'},  // Ž
    {0x9A, 's'},  // š
    {0x9D, 't'},  // ť
    {0x9E, 'z'},  // ž
    {0xC1, 'A'},  // Á
    {0xC8, 'C'},  // Č
    {0xC9, 'E'},  // É
    {0xCC, 'E'},  // Ě
    {0xCD, 'I'},  // Í
    {0xD2, 'N'},  // Ň
    {0xD8, 'R'},  // Ř
    {0xDA, 'U'},  // Ú
    {0xDD, 'Y'},  // Ý
    {0xE1, 'a'},  // á
    {0xE8, 'c'},  // č
    {0xE9, 'e'},  // é
    {0xEC, 'e'},  // ě
    {0xED, 'i'},  // í
    {0xF2, 'n'},  // ň
    {0xF8, 'r'},  // ř
    {0xF9, 'u'},  // ů
    {0xFA, 'u'},  // ú
    {0xFD, 'y'},  // ý
};

// Untested: runs at compile time only.
constexpr std::array<char, 256> MakeTable() {
  std::array<char, 256> table{};
  for (std::size_t byte = 0; byte < table.size(); ++byte) table[byte] = static_cast<char>(byte);
  for (const Letter& letter : kLetters) table[letter.byte] = letter.base;
  return table;
}

constexpr std::array<char, 256> kBaseOf = MakeTable();

}  // namespace

std::string RemoveDiacritics(std::string_view text) {
  std::string result(text);
  std::ranges::transform(text, result.begin(),
                         [](char byte) { return kBaseOf[static_cast<unsigned char>(byte)]; });
  return result;
}

}  // namespace ravo::RavoInterfaceCommon
