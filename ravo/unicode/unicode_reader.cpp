#include <ravo/unicode/unicode_reader.h>

namespace ravo::DIUnicode {

TDIUnicodeReader::TDIUnicodeReader(TComponent* AOwner) : TDIUnicodeBase(AOwner) {}

TDIUnicodeReader::~TDIUnicodeReader() {
  if (FReadMethods.Finalize != nullptr) FReadMethods.Finalize(*this);
}

void TDIUnicodeReader::SetSourceBuffer(std::span<const std::uint8_t> buffer) {
  FSourceBuffer = buffer.data();
  FSourceBufferSize = static_cast<std::uint32_t>(buffer.size());
  FSourceBufferPosition = 0;
}

void TDIUnicodeReader::SetReadMethods(const TDIUnicodeReadMethods& methods) {
  if (FReadMethods.Finalize != nullptr) FReadMethods.Finalize(*this);
  FState = 0;
  FReadMethods = methods;
  if (FReadMethods.Init != nullptr) FReadMethods.Init(*this);
}

bool TDIUnicodeReader::ReadChar() {
  FCharOK = FReadMethods.ReadChar != nullptr && FReadMethods.ReadChar(*this, FChar);
  return FCharOK;
}

std::uint32_t TDIUnicodeReader::FillSourceBuffer(bool) { return 0; }

}  // namespace ravo::DIUnicode
