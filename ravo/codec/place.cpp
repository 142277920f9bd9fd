#include <ravo/codec/kernels/run_search.h>
#include <ravo/codec/place.h>

#include <span>

namespace ravo::codec {

void Place::Advance(std::u16string_view text) noexcept {
  if (text.empty()) return;
  const LineStarts starts = FindLineStarts(last_, std::span<const char16_t>(text));
  const char16_t before = text.size() > 1 ? text[text.size() - 2] : last_;
  line_ += starts.count;
  column_ = starts.count != 0 ? text.size() - starts.last : column_ + text.size();
  if (text.back() == u'\n' && before == u'\r') --column_;
  last_ = text.back();
}

}  // namespace ravo::codec
