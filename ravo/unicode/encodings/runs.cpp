#include <ravo/codec/kernels/kernel_set.h>
#include <ravo/unicode/encodings.h>
#include <ravo/unicode/encodings/runs.h>

namespace ravo::unicode {
namespace {

template <class Test>
codec::Runs RunsWhere(Test test) noexcept {
  const auto rows = DIUnicode::EncodingRows();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (test(rows[i])) return codec::RunsOfEncodings()[i];
  }
  return {};
}

codec::Runs RunsOf(const DIUnicode::TDIUnicodeReadMethods& methods) noexcept {
  return RunsWhere([&methods](const DIUnicode::EncodingRow& row) {
    return row.read != nullptr && row.read->ReadChar == methods.ReadChar;
  });
}

}  // namespace

codec::DecodeRun DecodeRunOf(const DIUnicode::TDIUnicodeReadMethods& methods) noexcept {
  return RunsOf(methods).decode;
}

codec::DecodeUntil DecodeUntilOf(const DIUnicode::TDIUnicodeReadMethods& methods) noexcept {
  return RunsOf(methods).decode_until;
}

codec::EncodeRun EncodeRunOf(const DIUnicode::TDIUnicodeWriteMethods& methods) noexcept {
  return RunsWhere([&methods](const DIUnicode::EncodingRow& row) {
           return row.write != nullptr && row.write->WriteChar == methods.WriteChar;
         })
      .encode;
}

}  // namespace ravo::unicode
