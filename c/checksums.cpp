#include "support.h"
#include <ravo/utils/crc32.h>
#include <ravo/utils/hashes.h>

#include <span>

using ravo::c::BytesIn;
using ravo::c::FailArgument;
using ravo::c::FailNullResult;
using ravo::c::Guarded;
using ravo::c::ReadBytes;
using ravo::c::ReadText;
using ravo::c::Units;
namespace utils = ravo::DIUtils;

ravo_status ravo_crc32(const void* bytes, size_t bytes_length, uint32_t* crc, ravo_error* error) {
  if (crc == nullptr) return FailNullResult(error);
  const auto [input, status] = ReadBytes(bytes, bytes_length, error);
  if (status != RAVO_OK) return status;
  *crc = ~ravo::UpdateCrc32(~*crc, std::as_bytes(std::span(input)));
  return RAVO_OK;
}

ravo_status ravo_suite_hash(ravo_suite_hash_of what, const void* bytes, size_t bytes_length, uint32_t initial,
                            uint32_t* hash, ravo_error* error) {
  if (hash == nullptr) return FailNullResult(error);
  if (what < RAVO_SUITE_HASH_BYTES || what > RAVO_SUITE_HASH_FOLDED_TEXT)
    return FailArgument(error, "the kind of hash is unknown");
  const BytesIn input = ReadBytes(bytes, bytes_length, error);
  if (input.status != RAVO_OK) return input.status;
  if (what <= RAVO_SUITE_HASH_UPPER_BYTES) {
    const auto of_bytes = what == RAVO_SUITE_HASH_BYTES ? utils::HashBuf : utils::HashBufIA;
    *hash = of_bytes(input.bytes.data(), input.bytes.size(), initial);
    return RAVO_OK;
  }
  const auto text = ReadText(input.bytes.data(), input.bytes.size(), error);
  if (text.status != RAVO_OK) return text.status;
  return Guarded(error, [&] {
    const Units units(text.text);
    *hash = what == RAVO_SUITE_HASH_TEXT ? utils::HashStrW(units, initial) : utils::HashStrIW(units, initial);
    return RAVO_OK;
  });
}
