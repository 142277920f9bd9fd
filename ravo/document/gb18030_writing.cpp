#include "gb18030_writing.h"

#include <ravo/codec/policies.h>
#include <ravo/convert/exact_encoding.h>

#include <cstdint>
#include <map>

namespace ravo::document {
namespace {

using Written = std::map<char32_t, std::string>;

void AppendNumber(std::uint32_t number, std::string& to) {
  to += static_cast<char>(0x81 + number / 12600);
  to += static_cast<char>(0x30 + number / 1260 % 10);
  to += static_cast<char>(0x81 + number / 10 % 126);
  to += static_cast<char>(0x30 + number % 10);
}

void AddRead(const convert::ExactEncoding& encoding, const std::string& bytes, Written& all) {
  codec::State state;
  const auto* const first = reinterpret_cast<const std::uint8_t*>(bytes.data());
  const convert::Character read = encoding.Read(state, {first, bytes.size()}, true);
  if (read.reading == convert::Character::Reading::Whole && read.bytes == bytes.size())
    all.try_emplace(read.code, bytes);
}

// Inverts what is read.
Written AllWritten(const codec::Encoding& row) {
  const convert::ExactEncoding encoding(row);
  Written all;
  for (int lead = 0x81; lead < 0xFF; ++lead) {
    for (int trail = 0x40; trail < 0xFF; ++trail)
      AddRead(encoding, {static_cast<char>(lead), static_cast<char>(trail)}, all);
  }
  // Four bytes stand for 39420 characters up to U+FFFF.
  constexpr std::uint32_t kFours = 39420;
  for (std::uint32_t number = 0; number < kFours; ++number) {
    std::string bytes;
    AppendNumber(number, bytes);
    AddRead(encoding, bytes, all);
  }
  return all;
}

}  // namespace

bool AppendGb18030(const codec::Encoding& row, char32_t c, std::string& to) {
  constexpr std::uint32_t kBeyond = (0x90 - 0x81) * 12600;
  if (c >= 0x10000) {
    AppendNumber(c - 0x10000 + kBeyond, to);
    return true;
  }
  if (c < 0x80) {
    to += static_cast<char>(c);
    return true;
  }
  static const Written written = AllWritten(row);
  const auto found = written.find(c);
  if (found == written.end()) return false;
  to += found->second;
  return true;
}

}  // namespace ravo::document
