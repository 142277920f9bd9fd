// Documents of any bytes in any encoding: without edits the bytes stay, and an edit that takes a piece out
// leaves all others.
#include <ravo/document/text.h>

#include <cstdint>
#include <cstdlib>
#include <string>

namespace document = ravo::document;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  try {
    const document::DocumentText text = document::DecodeDocument(bytes);
    if (document::EditedBytes(text, {}) != bytes) std::abort();
    std::size_t middle = text.utf8.size() / 2;
    while (middle > 0 && (static_cast<unsigned char>(text.utf8[middle]) & 0xC0) == 0x80) --middle;
    const document::DocumentEdit cuts[] = {{{0, middle}, ""}, {{middle, text.utf8.size()}, ""}};
    const std::string end = document::EditedBytes(text, {cuts, 1});
    const std::string begin = document::EditedBytes(text, {cuts + 1, 1});
    if (begin + end.substr(text.mark) != bytes) std::abort();
    // The first edit of a text without a mark, such as one that was just decoded, adds what can be written.
    const document::DocumentEdit added[] = {{{middle, middle}, "a"}};
    if (document::EditedBytes(text, added).size() <= bytes.size()) std::abort();
  } catch (const document::PlacedError&) {
    // No document in a known encoding.
  }
  return 0;
}
