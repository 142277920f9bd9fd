#include <ravo/unicode/unicode_writer.h>

namespace ravo::DIUnicode {

TDIUnicodeWriter::TDIUnicodeWriter(TComponent* AOwner) : TDIUnicodeBase(AOwner) {}

TDIUnicodeWriter::~TDIUnicodeWriter() {
  if (FWriteMethods.Finalize != nullptr) FWriteMethods.Finalize(*this);
}

void TDIUnicodeWriter::SetWriteMethods(const TDIUnicodeWriteMethods& methods) {
  if (FWriteMethods.Finalize != nullptr) FWriteMethods.Finalize(*this);
  FState = 0;
  FWriteMethods = methods;
  if (FWriteMethods.Init != nullptr) FWriteMethods.Init(*this);
}

void TDIUnicodeWriter::FlushDataBuffer() {
  if (FWriteMethods.Flush != nullptr) FWriteMethods.Flush(*this);
}

void TDIUnicodeWriter::WriteByte(std::uint8_t byte) { bytes_.push_back(byte); }

}  // namespace ravo::DIUnicode
