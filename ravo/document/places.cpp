#include "places.h"

namespace ravo::document {

TextPlace PlaceFinder::Find(std::size_t at) {
  if (at < at_) *this = PlaceFinder(text_);
  for (; at_ < at && at_ < text_.size(); ++at_) {
    const auto byte = static_cast<unsigned char>(text_[at_]);
    const bool ends_line = byte == '\n' || (byte == '\r' && !text_.substr(at_ + 1).starts_with('\n'));
    if (ends_line) {
      ++place_.line;
      place_.column = 1;
    } else if ((byte & 0xC0) != 0x80) {
      ++place_.column;
    }
  }
  return place_;
}

}  // namespace ravo::document
