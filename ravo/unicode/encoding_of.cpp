#include <ravo/unicode/encoding_of.h>
#include <ravo/unicode/encodings.h>

#include <algorithm>

namespace ravo::unicode {
namespace {

// Both lists have the order of rows.inc.
template <class Test>
const codec::Encoding* EncodingWhere(Test test) noexcept {
  const auto rows = DIUnicode::EncodingRows();
  const auto row = std::ranges::find_if(rows, test);
  return row == rows.end() ? nullptr : &codec::Encodings()[static_cast<std::size_t>(row - rows.begin())];
}

}  // namespace

const codec::Encoding* EncodingOf(const DIUnicode::TDIUnicodeReadMethods& methods) noexcept {
  return EncodingWhere([&methods](const DIUnicode::EncodingRow& row) {
    return row.read != nullptr && row.read->ReadChar == methods.ReadChar;
  });
}

const codec::Encoding* EncodingOf(const DIUnicode::TDIUnicodeWriteMethods& methods) noexcept {
  return EncodingWhere([&methods](const DIUnicode::EncodingRow& row) {
    return row.write != nullptr && row.write->WriteChar == methods.WriteChar;
  });
}

}  // namespace ravo::unicode
