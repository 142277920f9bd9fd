#include <ravo/unicode/encoding_of.h>
#include <ravo/unicode/encodings.h>
#include <ravo/unicode/messages.h>
#include <ravo/unicode/unicode_writer.h>

#include <exception>

namespace ravo::DIUnicode {
TDIUnicodeWriter::TDIUnicodeWriter(TComponent* AOwner) : TDIUnicodeBase(AOwner) { UseWriteMethods({}); }

TDIUnicodeWriter::~TDIUnicodeWriter() {
  try {
    if (FDataStream != nullptr) FlushDataBuffer();
  } catch (const std::exception&) {
    // A destructor must not throw; `FlushDataBuffer` before shows the error.
  }
  if (FWriteMethods.Finalize != nullptr) FWriteMethods.Finalize(*this);
}

void TDIUnicodeWriter::Raise(const ResourceString& message) { RaiseError(u"TDIUnicodeWriter", message); }

void TDIUnicodeWriter::Raise(const ResourceString& message, std::uint64_t number) {
  RaiseError(u"TDIUnicodeWriter", message, number);
}

// Sets the methods, completed with defaults.
void TDIUnicodeWriter::UseWriteMethods(const TDIUnicodeWriteMethods& methods) {
  FWriteMethods = methods;
  if (FWriteMethods.WriteChar == nullptr) {
    FWriteMethods.Init = nullptr;
    FWriteMethods.WriteChar = Write_Iso_8859_1_WriteChar;
  }
  const codec::Encoding* const encoding = unicode::EncodingOf(FWriteMethods);
  FEncodeRun = encoding != nullptr ? encoding->encode_run : nullptr;
}

void TDIUnicodeWriter::SetWriteMethods(const TDIUnicodeWriteMethods& methods) {
  // `methods` may refer to `FWriteMethods`, which `Finalize` may still read.
  const TDIUnicodeWriteMethods copy = methods;
  if (FWriteMethods.Finalize != nullptr) FWriteMethods.Finalize(*this);
  FState = 0;
  UseWriteMethods(copy);
  if (FWriteMethods.Init != nullptr) FWriteMethods.Init(*this);
}

// Returns whether the handler or its replacement settled the matter; `answer` is then the result.
bool TDIUnicodeWriter::AskAboutChar(char16_t c, bool& answer) {
  char16_t replacement = FReplacementChar;
  for (std::uint32_t attempt = 0;; ++attempt) {
    const char16_t before = replacement;
    auto action = TDIInvalidCharAction::icWrite;
    FOnInvalidChar(*this, c, replacement, attempt, action);
    answer = action != TDIInvalidCharAction::icAbort;
    if (action != TDIInvalidCharAction::icWrite || TryWriteCharW(replacement)) return true;
    if (replacement == before) return false;
  }
}

bool TDIUnicodeWriter::WriteInvalidChar(char16_t c) {
  bool answer = true;
  const bool settled = FOnInvalidChar ? AskAboutChar(c, answer) : TryWriteCharW(FReplacementChar);
  return settled ? answer : TryWriteCharW(u'?');
}

}  // namespace ravo::DIUnicode
